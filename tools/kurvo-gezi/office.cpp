#include "office.h"

#include "launch.h"
#include "platform/money.h"
#include "sample.h"
#include "school.h"
#include "store/record.h"

#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint64_t seed = 1;
constexpr std::size_t enough_instalments = 4;

QDateTime present_moment() {
    return {sample::school_year(school::default_term).today, QTime(10, 15)};
}

void make_school() {
    school::create(school::default_root, {school::default_term});
    sample::fill_reference(school::default_root);
    sample::fill_term(school::default_root, school::default_term, seed, {});
}

void hand_over() {
    launch::HandOver values;
    values.version = school::version_of(school::default_root);
    values.root = school::default_root;
    values.school = u"ÖZEL KURVO DERSHANESİ"_s;
    values.term = school::default_term;
    values.hide_archived = u"0"_s;
    values.rights = u"111111"_s;
    values.user = sample::user_code;
    values.photos = school::photo_folder(school::default_root);
    launch::prepare(values);
}

}  // namespace

Office::Office(const QString& papers) : clock_(present_moment) {
    qputenv("KURVO_DRIVES", drives_.path().toUtf8());
    qputenv("KURVO_PRINTER", "pdf:" + papers.toUtf8());
    make_school();
    hand_over();
}

QString Office::term_file() const {
    return school::term_file(school::default_root, school::default_term);
}

QString Office::reference_file() const {
    return school::reference_file(school::default_root);
}

std::vector<Office::Person> Office::students() const {
    store::Database term = store::OpenDatabase(term_file());
    store::Recordset records = term.OpenRecordset("Ogrenci");
    records.Index("ONOX");
    std::vector<Person> all;
    store::scan_all(records, [&] {
        all.push_back({static_cast<int>(records["ONO"].whole_number()), records["ADSOY"].text()});
    });
    return all;
}

Office::Person Office::debtor() const {
    store::Database term = store::OpenDatabase(term_file());
    store::Recordset records = term.OpenRecordset("Ogrenci");
    records.Index("ONOX");
    Person found;
    store::scan_all(records, [&] {
        const int number = static_cast<int>(records["ONO"].whole_number());
        const bool plain = records["SAKLA"].number() == 0 && records["AYYER"].text().trimmed().isEmpty();
        const bool pictured = records["RESIM"].text().contains(u".bmp");
        if (!plain || !pictured || open_instalments(number).size() < enough_instalments) return true;
        found = {number, records["ADSOY"].text()};
        return false;
    });
    if (found.number == 0) throw std::runtime_error("no student of the sample school owes enough");
    return found;
}

std::vector<OpenInstalment> Office::open_instalments(int number) const {
    store::Database term = store::OpenDatabase(term_file());
    store::Recordset plan = term.OpenRecordset("Odeme");
    plan.Index("OVX");
    std::vector<OpenInstalment> open;
    store::scan_prefix(plan, {number}, [&] {
        const Money rest = Money::from_number(plan["TUTAR"].number()) - Money::from_number(plan["ODENEN"].number());
        if (rest > Money()) open.push_back({plan["VADE"].text(), rest.rounded()});
    });
    return open;
}

std::int64_t Office::cash_of_today() const {
    store::Database reference = store::OpenDatabase(reference_file());
    store::Recordset cash = reference.OpenRecordset("Kasa");
    cash.Index("TSX");
    double sum = 0;
    store::scan_prefix(cash, {dates::key(clock_source::today())}, [&] { sum += cash["TUTAR"].number(); });
    return std::llround(sum);
}

int Office::payments_of_today(int number) const {
    store::Database term = store::OpenDatabase(term_file());
    store::Recordset payments = term.OpenRecordset("Tahsilat");
    payments.Index("OVTX");
    const QString today = dates::key(clock_source::today());
    int count = 0;
    store::scan_prefix(payments, {number}, [&] { count += payments["TARIH"].text() == today ? 1 : 0; });
    return count;
}
