// Walks a sample school of 120 students as an auditor would: every rule that the program relies on.
#include "sample.h"

#include "platform/clock.h"
#include "rows.h"
#include "support/school.h"

using rows::Record;

namespace {

constexpr int student_count = 120;

bool is_date(const store::Value& value) {
    return dates::from_key(value.text()).isValid();
}

QString key_of(const Record& record, const QStringList& fields) {
    QStringList parts;
    for (const QString& field : fields) parts.append(record[field].text());
    return parts.join('/');
}

// The rows of a table, each under the texts of these fields.
QHash<QString, Record> keyed(const QList<Record>& records, const QStringList& fields) {
    QHash<QString, Record> result;
    for (const Record& record : records) result.insert(key_of(record, fields), record);
    return result;
}

}  // namespace

class SampleTest : public QObject {
    Q_OBJECT

    // One sample school for all tests of its rows.
    std::optional<School> school_;
    QList<Record> students_, instalments_, payments_;

private slots:
    void initTestCase() {
        school_.emplace();
        sample::fill_reference(rows::root);
        sample::fill_term(rows::root, "2026", 7, {.students = student_count, .instalments = {}, .absences = {}});
        students_ = rows::all(rows::term, "Ogrenci");
        instalments_ = rows::all(rows::term, "Odeme");
        payments_ = rows::all(rows::term, "Tahsilat");
    }
    void cleanupTestCase() { school_.reset(); }

    void students_keep_the_encoding_rules() {
        static const QHash<QString, int> longest{{"ADSOY", 25}, {"SINIF", 4},    {"VELI", 25},  {"ANNE", 20},
                                                 {"BABA", 20},  {"ADRES1", 35},  {"AILCE", 13}, {"ACK", 50},
                                                 {"AYYER", 25}, {"GELOKUL", 40}, {"OZELKOD", 3}};
        QCOMPARE(students_.size(), student_count);
        for (const Record& student : students_) {
            for (auto field = student.begin(); field != student.end(); ++field)
                QVERIFY2(field->is_number() || !field->text().isEmpty(), qPrintable(field.key()));
            for (auto limit = longest.begin(); limit != longest.end(); ++limit)
                QVERIFY2(student[limit.key()].text().size() <= *limit, qPrintable(student[limit.key()].text()));
            for (const char* field : {"KAYTAR", "AYTAR", "DOGTAR", "VERTAR"}) QVERIFY2(is_date(student[field]), field);
            for (const char* field : {"TEL", "VGSM", "AGSMTEL", "BGSMTEL"}) QCOMPARE(student[field].text().size(), 10);
            for (const char* field : {"RESIM", "VMAIL"}) QVERIFY2(student[field].text().startsWith("{\\rtf"), field);
            QVERIFY(student["BOLUM"].is_text() && student["SAVBEL"].is_text());
            QCOMPARE(student["AYTAR"].text() == "20000101", student["AYYER"].text() == " ");
        }
    }

    void plans_and_payments_add_up() {
        QHash<QString, qint64> planned, paid;
        for (const Record& payment : payments_) {
            paid[key_of(payment, {"ONO", "VADE"})] += payment["ODENEN"].whole_number();
            const bool invoice = payment["BTIP"].text() == "F";
            QCOMPARE(key_of(payment, {"FTAR", "FNO"}), invoice ? key_of(payment, {"TARIH", "BNO"}) : " / ");
            QVERIFY(payment["TARIH"].text() <= "20261120");
        }
        for (const Record& instalment : instalments_) {
            QVERIFY(is_date(instalment["VADE"]) && instalment["TUTAR"].number() > 0);
            QVERIFY(instalment["ODENEN"].number() <= instalment["TUTAR"].number());
            QVERIFY(instalment["CYER"].text() == " " && !instalment["ACK"].text().isEmpty());
            QCOMPARE(instalment["ODENEN"].whole_number(), paid.take(key_of(instalment, {"ONO", "VADE"})));
            planned[instalment["ONO"].text()] += instalment["TUTAR"].whole_number();
        }
        QVERIFY2(paid.isEmpty(), "payments without an instalment");
        for (const Record& student : students_)
            QCOMPARE(planned.take(student["ONO"].text()),
                     student["KTUTAR"].whole_number() * (100 - student["ISKONTO"].whole_number()) / 100);
        QVERIFY2(planned.isEmpty(), "instalments without a student");
    }

    void payments_link_to_the_cash_book() {
        const QHash<QString, Record> students = keyed(students_, {"ONO"});
        const QHash<QString, Record> collected = keyed(payments_, {"TARIH", "KSAAT"});
        QHash<QString, qint64> taken;
        for (const Record& payment : payments_)
            taken[key_of(payment, {"TARIH", "KSAAT"})] += payment["ODENEN"].whole_number();
        for (const Record& cash : rows::all(rows::reference, "Kasa")) {
            const QString key = key_of(cash, {"TARIH", "SAAT"});
            QVERIFY(taken.contains(key));
            const qint64 amount = taken.take(key);
            if (cash["TIP"].text() == "TL") QCOMPARE(cash["TUTAR"].whole_number(), amount);
            const Record student = students[collected[key]["ONO"].text()];
            const QString blank = student["SAKLA"].whole_number() == 1 ? " " : "";
            QCOMPARE(cash["ACK"].text(), student["ONO"].text() + "  " + student["ADSOY"].text() + blank + " #2026");
            QCOMPARE(key_of(cash, {"AE", "KOD"}), "+/1");
        }
        QVERIFY2(taken.isEmpty(), "collections without a row in the cash book");
    }

    void document_numbers_follow_the_days() {
        QHash<QString, QMap<int, QString>> moments;  // series, number: date and time
        for (const Record& payment : payments_)
            moments[payment["BTIP"].text()][payment["BNO"].text().toInt()] = key_of(payment, {"TARIH", "KSAAT"});
        const QHash<QString, Record> last = keyed(rows::all(rows::reference, "Belgeno"), {"SERI"});
        for (const QString series : {"M", "F"}) {
            const QMap<int, QString>& numbers = moments[series];
            QCOMPARE(numbers.firstKey(), 1);
            QCOMPARE(numbers.lastKey(), static_cast<int>(numbers.size()));
            QCOMPARE(last[series]["SNO"].whole_number(), numbers.lastKey());
            QVERIFY(std::is_sorted(numbers.begin(), numbers.end()));
        }
    }
};

static const Registered<SampleTest> registered;
#include "sample_test.moc"
