// Walks a sample school of 120 students as an auditor would: every rule that the program relies on.
#include "sample.h"

#include "platform/clock.h"
#include "platform/rich_text.h"
#include "rows.h"
#include "school.h"
#include "tool_tests.h"

#include <QImage>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using rows::Record;

namespace {

constexpr int student_count = 120;

bool is_date(const store::Value& value) {
    return dates::from_key(value.text()).isValid();
}

QHash<qint64, Record> students_by_number() {
    QHash<qint64, Record> result;
    for (const Record& student : rows::all(rows::term, "Ogrenci"))
        result.insert(student[u"ONO"_s].whole_number(), student);
    return result;
}

QSet<QString> texts_of(const QString& file, const char* table, const QString& field) {
    QSet<QString> result;
    for (const Record& record : rows::all(file, table)) result.insert(record[field].text());
    return result;
}

QString key_of(const Record& record, const QStringList& fields) {
    QStringList parts;
    for (const QString& field : fields) parts.append(record[field].text());
    return parts.join(u'/');
}

}  // namespace

void SampleTest::initTestCase() {
    drives_.emplace();
    school::create(school::default_root, {u"2026"_s});
    sample::fill_reference(school::default_root);
    sample::Scale scale;
    scale.students = student_count;
    sample::fill_term(school::default_root, u"2026"_s, 7, scale);
}

void SampleTest::students_keep_the_encoding_rules() {
    static const QHash<QString, int> longest{{u"ADSOY"_s, 25}, {u"SINIF"_s, 4},    {u"VELI"_s, 25},  {u"ANNE"_s, 20},
                                             {u"BABA"_s, 20},  {u"ADRES1"_s, 35},  {u"AILCE"_s, 13}, {u"ACK"_s, 50},
                                             {u"AYYER"_s, 25}, {u"GELOKUL"_s, 40}, {u"OZELKOD"_s, 3}};
    const QList<Record> students = rows::all(rows::term, "Ogrenci");
    QCOMPARE(students.size(), student_count);
    for (const Record& student : students) {
        for (auto field = student.begin(); field != student.end(); ++field) {
            QVERIFY2(!field->is_null(), qPrintable(field.key()));
            QVERIFY2(!field->is_text() || !field->text().isEmpty(), qPrintable(field.key()));
        }
        for (auto limit = longest.begin(); limit != longest.end(); ++limit)
            QVERIFY2(student[limit.key()].text().size() <= *limit, qPrintable(student[limit.key()].text()));
        for (const QString& field : {u"KAYTAR"_s, u"AYTAR"_s, u"DOGTAR"_s, u"VERTAR"_s})
            QVERIFY2(is_date(student[field]), qPrintable(field));
        for (const QString& field : {u"TEL"_s, u"VGSM"_s, u"AGSMTEL"_s, u"BGSMTEL"_s})
            QCOMPARE(student[field].text().size(), 10);
        for (const QString& field : {u"RESIM"_s, u"VMAIL"_s}) QVERIFY(student[field].text().startsWith(u"{\\rtf"_s));
        QVERIFY(student[u"BOLUM"_s].is_text());
        QVERIFY(student[u"SAVBEL"_s].is_text());
        const bool left = student[u"AYYER"_s].text() != u" "_s;
        QCOMPARE(student[u"AYTAR"_s].text() == u"20000101"_s, !left);
    }
}

void SampleTest::classes_and_photos_are_there() {
    const QSet<QString> classes = texts_of(rows::term, "Sinif", u"SINIF"_s);
    int photos = 0;
    for (const Record& student : rows::all(rows::term, "Ogrenci")) {
        QVERIFY(classes.contains(student[u"SINIF"_s].text()));
        const QString photo = rich_text::plain(student[u"RESIM"_s].text());
        if (photo.isEmpty()) continue;
        QCOMPARE(photo, u"2026_%1.bmp"_s.arg(student[u"ONO"_s].text()));
        QVERIFY(!QImage(drives_->path(u"c/okul/foto/"_s + photo)).isNull());
        ++photos;
    }
    QVERIFY(photos > student_count / 2 && photos < student_count);
}

void SampleTest::plans_add_up_to_the_fee() {
    const QHash<qint64, Record> students = students_by_number();
    QHash<qint64, qint64> planned;
    for (const Record& instalment : rows::all(rows::term, "Odeme")) {
        const qint64 number = instalment[u"ONO"_s].whole_number();
        QVERIFY(students.contains(number));
        QVERIFY(is_date(instalment[u"VADE"_s]));
        QVERIFY(instalment[u"TUTAR"_s].number() > 0);
        QVERIFY(instalment[u"ODENEN"_s].number() <= instalment[u"TUTAR"_s].number());
        QCOMPARE(instalment[u"CYER"_s].text(), u" "_s);
        QVERIFY(!instalment[u"ACK"_s].text().isEmpty());
        planned[number] += instalment[u"TUTAR"_s].whole_number();
    }
    for (const Record& student : students) {
        const qint64 fee = student[u"KTUTAR"_s].whole_number();
        const qint64 owed = fee * (100 - student[u"ISKONTO"_s].whole_number()) / 100;
        QCOMPARE(planned.value(student[u"ONO"_s].whole_number()), owed);
    }
}

void SampleTest::payments_add_up_and_link_to_the_cash_book() {
    const QHash<qint64, Record> students = students_by_number();
    QHash<QString, qint64> paid, taken;
    QHash<QString, QString> cash_student;
    for (const Record& payment : rows::all(rows::term, "Tahsilat")) {
        paid[key_of(payment, {u"ONO"_s, u"VADE"_s})] += payment[u"ODENEN"_s].whole_number();
        const QString cash = key_of(payment, {u"TARIH"_s, u"KSAAT"_s});
        taken[cash] += payment[u"ODENEN"_s].whole_number();
        cash_student[cash] = payment[u"ONO"_s].text();
        const bool invoice = payment[u"BTIP"_s].text() == u"F"_s;
        QCOMPARE(payment[u"FTAR"_s].text(), invoice ? payment[u"TARIH"_s].text() : u" "_s);
        QCOMPARE(payment[u"FNO"_s].text(), invoice ? payment[u"BNO"_s].text() : u" "_s);
        QVERIFY(payment[u"TARIH"_s].text() <= u"20261120"_s);
    }
    for (const Record& instalment : rows::all(rows::term, "Odeme"))
        QCOMPARE(instalment[u"ODENEN"_s].whole_number(), paid.take(key_of(instalment, {u"ONO"_s, u"VADE"_s})));
    QVERIFY2(paid.isEmpty(), "payments without an instalment");

    for (const Record& cash : rows::all(rows::reference, "Kasa")) {
        const QString key = key_of(cash, {u"TARIH"_s, u"SAAT"_s});
        QVERIFY(taken.contains(key));
        const qint64 amount = taken.take(key);
        if (cash[u"TIP"_s].text() == u"TL"_s) QCOMPARE(cash[u"TUTAR"_s].whole_number(), amount);
        const Record& student = students[cash_student[key].toLongLong()];
        const QString blank = student[u"SAKLA"_s].whole_number() == 1 ? u" "_s : QString();
        QCOMPARE(cash[u"ACK"_s].text(), cash_student[key] + u"  "_s + student[u"ADSOY"_s].text() + blank + u" #2026"_s);
        QCOMPARE(key_of(cash, {u"AE"_s, u"KOD"_s}), u"+/1"_s);
    }
    QVERIFY2(taken.isEmpty(), "collections without a row in the cash book");
}

void SampleTest::document_numbers_follow_the_days() {
    QMap<QString, QMap<int, QString>> moments;  // series, number: date and time
    for (const Record& payment : rows::all(rows::term, "Tahsilat"))
        moments[payment[u"BTIP"_s].text()][payment[u"BNO"_s].text().toInt()] =
            key_of(payment, {u"TARIH"_s, u"KSAAT"_s});
    QHash<QString, int> last;
    for (const Record& series : rows::all(rows::reference, "Belgeno"))
        last[series[u"SERI"_s].text()] = static_cast<int>(series[u"SNO"_s].whole_number());
    for (const QString& series : {u"M"_s, u"F"_s}) {
        const QMap<int, QString>& numbers = moments[series];
        QCOMPARE(numbers.firstKey(), 1);
        QCOMPARE(numbers.lastKey(), static_cast<int>(numbers.size()));
        QCOMPARE(last[series], numbers.lastKey());
        const QStringList in_order = numbers.values();
        QVERIFY(std::is_sorted(in_order.begin(), in_order.end()));
    }
}

void SampleTest::absences_have_hours_and_known_lessons() {
    const QSet<QString> lessons = texts_of(rows::reference, "Ders", u"KOD"_s);
    for (const char* table : {"Devam", "EtudDevam"}) {
        const QList<Record> absences = rows::all(rows::term, table);
        QVERIFY(absences.size() > student_count);
        for (const Record& absence : absences) {
            QVERIFY(lessons.contains(absence[u"DKOD"_s].text()));
            double hours = 0;
            for (const QString& counter : {u"IZINLI"_s, u"IZINSIZ"_s, u"RAPORLU"_s}) {
                QVERIFY(!absence[counter].is_null());
                hours += absence[counter].number();
            }
            QVERIFY(hours > 0);
        }
    }
    for (const char* table : {"Dmazeret", "Emazeret"})
        for (const Record& excuse : rows::all(rows::term, table)) QVERIFY(is_date(excuse[u"TARIH"_s]));
    QVERIFY(rows::all(rows::term, "Dmazeret").size() > 20);
}

void SampleTest::sessions_are_booked_once_and_partly_attended() {
    const QSet<QString> teachers = texts_of(rows::reference, "Ogretmen", u"SICIL"_s);
    QHash<QString, int> marks, group;
    for (const Record& session : rows::all(rows::term, "Etud")) {
        QVERIFY(teachers.contains(session[u"SICIL"_s].text()));
        QVERIFY(session[u"SAAT"_s].text() < session[u"BITSAAT"_s].text());
        QVERIFY(session[u"KONU"_s].text().size() <= 50 && !session[u"KONU"_s].text().isEmpty());
        ++marks[session[u"GIRDI"_s].text()];
        ++group[key_of(session, {u"TARIH"_s, u"SAAT"_s, u"SICIL"_s})];
    }
    QCOMPARE(QSet<QString>(marks.keyBegin(), marks.keyEnd()), QSet<QString>({u"X"_s, u" "_s}));
    QVERIFY2(*std::max_element(group.begin(), group.end()) > 1, "no group session");
}

void SampleTest::prices_end_with_the_discounts() {
    const QList<Record> prices = rows::all(rows::reference, "Fiyat");
    QCOMPARE(key_of(prices.first(), {u"TUR"_s, u"KOD"_s, u"DEGER"_s}), u"0/MTS/12"_s);
    QCOMPARE(prices.last()[u"TUR"_s].text(), u"2"_s);
    const QStringList lines = QString::fromUtf8(drives_->bytes(u"c/okul/data/KasaTip.txt"_s)).split(u"\r\n"_s);
    QCOMPARE(lines.first(), u"TL"_s);
    for (const Record& stop : rows::all(rows::reference, "Servis"))
        QCOMPARE(stop[u"ACK"_s].text().contains(u'#'), stop[u"DRK"_s].whole_number() > 0);
}

void SampleTest::has_every_kind_of_student() {
    QSet<qint64> forms;
    for (const Record& instalment : rows::all(rows::term, "Odeme")) forms.insert(instalment[u"ODSEK"_s].whole_number());
    QCOMPARE(forms, QSet<qint64>({0, 1, 2, 3, 4, 5, 6}));
    int hidden = 0, left = 0, noted = 0, free_of_charge = 0;
    for (const Record& student : rows::all(rows::term, "Ogrenci")) {
        hidden += student[u"SAKLA"_s].whole_number() == 1;
        left += student[u"AYYER"_s].text() != u" "_s;
        noted += rich_text::plain(student[u"NOT"_s].text()).size() > 1;
        free_of_charge += student[u"KTUTAR"_s].number() == 0;
    }
    QVERIFY(hidden > 0 && left > 0 && noted > 0 && free_of_charge > 0);
}
