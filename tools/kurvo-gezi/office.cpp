#include "office.h"

#include "launch.h"
#include "platform/money.h"
#include "platform/paths.h"
#include "platform/text_file.h"
#include "sample.h"
#include "school.h"
#include "store/record.h"

#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint64_t seed = 1;
constexpr std::size_t enough_instalments = 4;

// A quarter of a second passes at each look at the clock: a payment waits for a second that is still free, and two
// walks see the same times.
std::function<QDateTime()> moving_clock(const QDateTime& from) {
    return [from, looks = 0]() mutable { return from.addMSecs(250 * looks++); };
}

QDateTime present_moment() {
    return QDateTime(sample::school_year(school::default_term).today, QTime(10, 15));
}

void see_drives(const QString& drives, const QString& papers) {
    qputenv("KURVO_DRIVES", drives.toUtf8());
    qputenv("KURVO_PRINTER", "pdf:" + papers.toUtf8());
}

void make_school() {
    school::create(school::default_root, {school::default_term});
    sample::fill_reference(school::default_root);
    sample::fill_term(school::default_root, school::default_term, seed, {});
}

// A preprinted form for the laser printer, one copy, 10 % VAT included: who pays at the left, number and date at the
// right, the amounts below each other, each item on a line of its own.
void draw_invoice_form() {
    QStringList lines{u"\"Yazıcı tipi\",1,1,1,10"_s};
    for (const int letter : {208, 240, 220, 252, 222, 254, 221, 253, 214, 246, 199, 231})
        lines += QString::number(letter);
    struct Item {
        int code, line, column, second;
    };
    for (const Item& item : std::vector<Item>{{8, 3, 70, 0},
                                              {9, 4, 70, 0},
                                              {1, 6, 8, 0},
                                              {3, 7, 8, 0},
                                              {4, 8, 8, 0},
                                              {5, 9, 8, 0},
                                              {6, 10, 8, 0},
                                              {7, 11, 8, 0},
                                              {0, 14, 8, 0},
                                              {10, 17, 8, 60},
                                              {11, 28, 60, 0},
                                              {12, 29, 60, 0},
                                              {13, 30, 60, 0},
                                              {14, 33, 8, 0}})
        lines += u"\"%1\",%2,%3,%4"_s.arg(item.code).arg(item.line).arg(item.column).arg(item.second);
    text_file::write_lines(school::default_root + u"data\\Fatura.txt"_s, lines);
}

// Whoever sets a school up lays the file there; its text is the clerk's.
void lay_contract() {
    text_file::write_lines(school::default_root + u"data\\Sozlesme.txt"_s, {u"Sözleşme hükümleri"_s});
}

// Any student's photograph will do.
void put_a_picture_before_the_camera() {
    const QString folder = school::photo_folder(school::default_root);
    const QStringList photos = paths::files_in(folder, u".bmp"_s);
    if (!photos.isEmpty()) qputenv("KURVO_CAMERA", paths::native(folder + photos.front()).toUtf8());
}

void hand_over(const QString& root, const QString& user) {
    launch::HandOver values;
    values.version = school::version_of(root);
    values.root = root;
    values.school = u"ÖZEL KURVO DERSHANESİ"_s;
    values.term = school::default_term;
    values.hide_archived = u"0"_s;
    values.rights = u"111111"_s;
    values.user = user;
    values.photos = school::photo_folder(root);
    launch::prepare(values);
}

template <typename Act>
void scan_cash_of_today(const QString& reference_file, Act act) {
    store::Database reference = store::OpenDatabase(reference_file);
    store::Recordset cash = reference.OpenRecordset("Kasa");
    cash.Index("TSX");
    store::scan_prefix(cash, {dates::key(clock_source::today())}, [&] { act(cash); });
}

}  // namespace

Office::Office(const QString& papers)
    : own_drives_(std::make_unique<QTemporaryDir>()),
      root_(school::default_root),
      clock_(moving_clock(present_moment())) {
    see_drives(own_drives_->path(), papers);
    make_school();
    draw_invoice_form();
    lay_contract();
    put_a_picture_before_the_camera();
    hand_over(root_, sample::user_code);
}

Office::Office(const Workstation& desk) : root_(desk.root), clock_(moving_clock(desk.opens)) {
    see_drives(desk.drives, desk.papers);
    hand_over(root_, desk.user);
}

QString Office::term_file() const {
    return school::term_file(root_, school::default_term);
}

QString Office::reference_file() const {
    return school::reference_file(root_);
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
    double sum = 0;
    scan_cash_of_today(reference_file(), [&](store::Recordset& cash) { sum += cash["TUTAR"].number(); });
    return std::llround(sum);
}

QStringList Office::cash_lines_of_today() const {
    QStringList lines;
    scan_cash_of_today(reference_file(), [&](store::Recordset& cash) { lines += cash["ACK"].text(); });
    return lines;
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
