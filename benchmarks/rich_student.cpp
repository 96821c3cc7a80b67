#include "rich_student.h"

#include "big_school.h"
#include "platform/clock.h"
#include "store/record.h"

#include <functional>

namespace bench {

namespace {

using Fill = std::function<void(store::Recordset&, int)>;

void replace_rows(store::Database& term, std::string_view table, double student, int count, const Fill& fill) {
    store::Recordset rows = term.OpenRecordset(table);
    store::scan_prefix(rows, {student}, [&] { rows.Delete(); });
    for (int i = 0; i < count; ++i) {
        rows.AddNew();
        rows["ONO"] = student;
        fill(rows, i);
        rows.Update();
    }
}

QString day(const QDate& first, int place) {
    return dates::key(first.addDays(place));
}
QString due_day(int instalment) {
    return dates::key(QDate(2026, 1, 10).addMonths(instalment));
}
// No other student's collection has this time.
QString cash_time(double student) {
    return QStringLiteral("%1").arg(static_cast<int>(student) % 1'000'000, 6, 10, QChar(u'0'));
}
const QDate first_payment(2015, 1, 1);

void add_cash(double student, int count) {
    store::Database reference = store::OpenDatabase(BigSchool::reference_file);
    store::WriteScope scope(reference);
    store::Recordset rows = reference.OpenRecordset("Kasa");
    for (int i = 0; i < count; ++i) {
        rows.Seek("=", {day(first_payment, i), cash_time(student)});
        if (!rows.NoMatch()) continue;
        rows.AddNew();
        rows["TARIH"] = day(first_payment, i);
        rows["SAAT"] = cash_time(student);
        rows["ACK"] = QString::number(student, 'f', 0) + QStringLiteral("  AYŞE NUR YILDIRIM #2026");
        rows["TUTAR"] = 750;
        rows["AE"] = "+";
        rows["KOD"] = "1";
        rows["TIP"] = "TL";
        rows.Update();
    }
    scope.commit();
}

}  // namespace

void give_rows(double student, const RowCounts& counts) {
    store::Database term = store::OpenDatabase(BigSchool::term_file);
    store::WriteScope scope(term);
    replace_rows(term, "Odeme", student, counts.instalments, [&](store::Recordset& row, int i) {
        row["VADE"] = due_day(i);
        row["TUTAR"] = 12'000 + static_cast<int>(student) % 1'000;
        row["ODENEN"] = 1'250;
        row["ACK"] = " ";
        row["ODSEK"] = i % 4;
        row["CYER"] = " ";
    });
    replace_rows(term, "Tahsilat", student, counts.payments, [&](store::Recordset& row, int i) {
        row["VADE"] = due_day(i % counts.instalments);
        row["TARIH"] = day(first_payment, i);
        row["SAAT"] = cash_time(student);
        row["ODENEN"] = 750;
        row["KSAAT"] = cash_time(student);
        for (const char* field : {"KASAFNO", "BTIP", "BNO", "FTAR", "FNO"}) row[field] = " ";
    });
    replace_rows(term, "Devam", student, counts.absences, [&](store::Recordset& row, int i) {
        row["TARIH"] = day({2026, 9, 14}, i);
        row["DKOD"] = "01";
        for (const char* field : {"IZINLI", "IZINSIZ", "RAPORLU"}) row[field] = i % 3;
    });
    replace_rows(term, "Etud", student, counts.sessions, [&](store::Recordset& row, int i) {
        row["TARIH"] = day({2026, 9, 14}, i);
        row["SAAT"] = "1500";
        row["BITSAAT"] = "1540";
        row["KOD"] = "01";
        row["SICIL"] = 101;
        row["GIRDI"] = " ";
        row["KONU"] = " ";
    });
    scope.commit();
    add_cash(student, counts.payments);
}

}  // namespace bench
