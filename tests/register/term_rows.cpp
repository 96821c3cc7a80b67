#include "term_rows.h"

#include "record_desk.h"

namespace term_rows {

namespace {

const QString day = QStringLiteral("20261105");

void add_absence(int student, const char* table, const char* excuses, const QString& date) {
    RecordDesk::add(RecordDesk::term_file, table, {{"ONO", student}, {"TARIH", date}, {"DKOD", "MT"}, {"IZINLI", 2}});
    RecordDesk::add(RecordDesk::term_file, excuses, {{"ONO", student}, {"TARIH", date}, {"ACK", "rapor"}});
}

}  // namespace

void add(int student) {
    for (const QString& part : {QStringLiteral("01"), QStringLiteral("02")}) {
        const QString date = QStringLiteral("202611") + part;
        RecordDesk::instalment(student, date, 500, 100);
        add_absence(student, "Devam", "Dmazeret", date);
        add_absence(student, "EtudDevam", "Emazeret", date);
        add_session(student, QStringLiteral("09") + part);
        const QString saat = QString::number(student) + part;
        RecordDesk::add(
            RecordDesk::term_file, "Tahsilat",
            {{"ONO", student}, {"VADE", date}, {"TARIH", day}, {"SAAT", saat}, {"ODENEN", 100}, {"KSAAT", saat}});
        add_cash_row(saat, QString::number(student) + QStringLiteral("  AYŞE #2026"));
    }
}

QString counts(int student) {
    store::Database term = store::OpenDatabase(RecordDesk::term_file);
    QStringList counts;
    for (const char* table : {"Odeme", "Devam", "Dmazeret", "Etud", "EtudDevam", "Emazeret", "Tahsilat"}) {
        int count = 0;
        store::Recordset rows = term.OpenRecordset(table);
        store::scan_prefix(rows, {student}, [&] { ++count; });
        counts << QString::number(count);
    }
    return counts.join(u' ');
}

void add_session(int student, const QString& saat) {
    RecordDesk::add(RecordDesk::term_file, "Etud",
                    {{"ONO", student}, {"TARIH", day}, {"SAAT", saat}, {"KOD", "MT"}, {"GIRDI", " "}});
}

void remove_session(int student, const QString& saat) {
    store::Database term = store::OpenDatabase(RecordDesk::term_file);
    store::Recordset sessions = term.OpenRecordset("Etud");
    sessions.Seek("=", {student, day, saat});
    sessions.Delete();
}

void add_cash_row(const QString& saat, const QString& text, const QString& kod) {
    RecordDesk::add(RecordDesk::reference_file, "Kasa",
                    {{"TARIH", day}, {"SAAT", saat}, {"ACK", text}, {"TUTAR", 100}, {"AE", "+"}, {"KOD", kod}});
}

QString cash_text(const QString& saat) {
    store::Database reference = store::OpenDatabase(RecordDesk::reference_file);
    store::Recordset kasa = reference.OpenRecordset("Kasa");
    kasa.Seek("=", {day, saat});
    return kasa.NoMatch() ? QStringLiteral("?") : kasa["ACK"].text();
}

}  // namespace term_rows
