#include "audit_checks.h"
#include "platform/numbers.h"

#include <cmath>
#include <map>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace audit {
namespace {

using store::FileKind;
using store::Recordset;

constexpr double smallest_difference = 0.005;

Recordset opened(store::Database& file, std::string_view table, std::string_view index) {
    Recordset rows = file.OpenRecordset(table);
    rows.Index(index);
    return rows;
}

bool holds(Recordset& rows, std::initializer_list<store::Value> key) {
    rows.Seek("=", key);
    return !rows.NoMatch();
}

void rows_without_student(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term) return;
    Recordset students = opened(books.file, "Ogrenci", "ONOX");
    for (const char* table : {"Odeme", "Tahsilat", "Devam", "EtudDevam", "Dmazeret", "Emazeret", "Etud"}) {
        Recordset rows = books.file.OpenRecordset(table);
        store::scan_all(rows, [&] {
            if (!holds(students, {rows["ONO"].value()})) tell(rows, u"böyle bir öğrenci yok"_s);
        });
    }
}

void paid_sums(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term) return;
    std::map<std::pair<double, QString>, double> paid;
    Recordset payments = books.file.OpenRecordset("Tahsilat");
    store::scan_all(payments, [&] {
        paid[{payments["ONO"].number(), payments["VADE"].text()}] += payments["ODENEN"].number();
    });
    Recordset instalments = books.file.OpenRecordset("Odeme");
    store::scan_all(instalments, [&] {
        const double stored = instalments["ODENEN"].number();
        const double sum = paid[{instalments["ONO"].number(), instalments["VADE"].text()}];
        if (std::abs(stored - sum) > smallest_difference)
            tell(instalments,
                 u"ödenen %1, tahsilatların toplamı %2"_s.arg(numbers::plain(stored), numbers::plain(sum)));
    });
}

void payments_without_instalment(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term) return;
    Recordset instalments = opened(books.file, "Odeme", "OVX");
    Recordset payments = books.file.OpenRecordset("Tahsilat");
    store::scan_all(payments, [&] {
        if (!holds(instalments, {payments["ONO"].value(), payments["VADE"].value()}))
            tell(payments, u"tahsilatın taksiti yok"_s);
    });
}

void payments_without_cash_row(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term || !books.reference) return;
    Recordset cash = opened(*books.reference, "Kasa", "TSX");
    Recordset payments = books.file.OpenRecordset("Tahsilat");
    store::scan_all(payments, [&] {
        if (!holds(cash, {payments["TARIH"].value(), payments["KSAAT"].value()}))
            tell(payments, u"tahsilatın kasa kaydı yok: KSAAT %1"_s.arg(payments["KSAAT"].text()));
    });
}

// Hands over each row of the cash book that a collection in a known term has left, with that term. Its text begins with
// the student's number and ends with " #" and the term.
template <typename Handle>
void each_collection(Books& books, Handle handle) {
    if (books.kind != FileKind::reference) return;
    Recordset cash = books.file.OpenRecordset("Kasa");
    store::scan_all(cash, [&] {
        if (cash["KOD"].text() != u"1") return;
        const QString text = cash["ACK"].text();
        const QString term = text.mid(text.lastIndexOf(u'#') + 1);
        if (books.terms.contains(term)) handle(cash, text, term);
    });
}

void cash_rows_without_student(Books& books, const Tell& tell) {
    std::map<QString, Recordset> students;
    for (auto& [term, file] : books.terms) students.emplace(term, opened(file, "Ogrenci", "ONOX"));
    each_collection(books, [&](Recordset& cash, const QString& text, const QString& term) {
        if (!holds(students.at(term), {numbers::val(text)})) tell(cash, u"kasa kaydının öğrencisi yok: %1"_s.arg(text));
    });
}

// A collection that was cut off behind its cash row, or between two payments; what was paid in another currency can
// only be wholly missing. A student who is gone took the payments along.
void cash_rows_without_payments(Books& books, const Tell& tell) {
    std::map<QString, std::map<QString, double>> paid;  // term -> date and time of the cash row -> sum
    std::map<QString, Recordset> students;
    for (auto& [term, file] : books.terms) {
        students.emplace(term, opened(file, "Ogrenci", "ONOX"));
        Recordset payments = file.OpenRecordset("Tahsilat");
        store::scan_all(payments, [&, &sums = paid[term]] {
            sums[payments["TARIH"].text() + payments["KSAAT"].text()] += payments["ODENEN"].number();
        });
    }
    each_collection(books, [&](Recordset& cash, const QString& text, const QString& term) {
        const auto sum = paid[term].find(cash["TARIH"].text() + cash["SAAT"].text());
        const double stored = cash["TUTAR"].number(), found = sum == paid[term].end() ? 0 : sum->second;
        const bool all_there =
            cash["TIP"].text() == u"TL" ? std::abs(stored - found) <= smallest_difference : found > 0;
        if (all_there || !holds(students.at(term), {numbers::val(text)})) return;
        tell(cash, u"kasaya giren %1, tahsilatların toplamı %2: %3"_s.arg(numbers::plain(stored), numbers::plain(found),
                                                                          text));
    });
}

struct Code {
    std::string_view table, field, list, index;
    QStringView what;
};
constexpr Code codes[] = {{"Devam", "DKOD", "Ders", "KODX", u"ders kodunun kaydı yok"},
                          {"EtudDevam", "DKOD", "Ders", "KODX", u"ders kodunun kaydı yok"},
                          {"Etud", "KOD", "Ders", "KODX", u"ders kodunun kaydı yok"},
                          {"Etud", "SICIL", "Ogretmen", "SICILX", u"öğretmen numarasının kaydı yok"}};

void codes_without_row(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term || !books.reference) return;
    for (const Code& code : codes) {
        Recordset list = opened(*books.reference, code.list, code.index);
        Recordset rows = books.file.OpenRecordset(code.table);
        store::scan_all(rows, [&] {
            const store::Value value = rows[code.field].value();
            if (!holds(list, {value})) tell(rows, u"%1: %2"_s.arg(code.what, value.text()));
        });
    }
}

constexpr Check checks[] = {{true, rows_without_student},
                            {true, paid_sums},
                            {false, payments_without_instalment},
                            {false, payments_without_cash_row},
                            {false, cash_rows_without_student},
                            {false, cash_rows_without_payments},
                            {false, codes_without_row}};

}  // namespace

std::span<const Check> link_checks() {
    return checks;
}

}  // namespace audit
