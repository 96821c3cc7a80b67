// Walks a sample school of 120 students as an auditor would: every rule that the program relies on.
#include "sample.h"

#include "platform/clock.h"
#include "platform/rich_text.h"
#include "rows.h"
#include "sample_money.h"
#include "support/school.h"

#include <QImage>
#include <QSet>

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

sample::Scale small() {
    return {.students = 30, .instalments = 10, .absences = 20, .photos = 0};
}

QByteArray whole_term(std::uint64_t seed) {
    const School school;
    sample::fill_reference(rows::root);
    sample::fill_term(rows::root, "2026", seed, small());
    QByteArray text = rows::dump(rows::reference, "Kasa");
    for (const store::TableDef& table : store::catalogue(store::FileKind::term))
        text += rows::dump(rows::term, QString::fromStdString(table.name));
    return text;
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

    void has_every_kind_of_student() {
        const QHash<QString, Record> classes = keyed(rows::all(rows::term, "Sinif"), {"SINIF"});
        int photos = 0, hidden = 0, left = 0, noted = 0, free_of_charge = 0;
        for (const Record& student : students_) {
            QVERIFY(classes.contains(student["SINIF"].text()));
            hidden += student["SAKLA"].whole_number() == 1;
            left += student["AYYER"].text() != " ";
            noted += rich_text::plain(student["NOT"].text()).size() > 1;
            free_of_charge += student["KTUTAR"].number() == 0;
            const QString photo = rich_text::plain(student["RESIM"].text());
            if (photo.isEmpty()) continue;
            QCOMPARE(photo, "2026_" + student["ONO"].text() + ".bmp");
            QVERIFY(!QImage(school_->drives.path("c/okul/foto/" + photo)).isNull());
            ++photos;
        }
        QVERIFY(photos > student_count / 2 && photos < student_count);
        QVERIFY(hidden > 0 && left > 0 && noted > 0 && free_of_charge > 0);
        QCOMPARE(keyed(instalments_, {"ODSEK"}).size(), 7);
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

    void absences_and_sessions_name_what_exists() {
        const QHash<QString, Record> lessons = keyed(rows::all(rows::reference, "Ders"), {"KOD"});
        const QHash<QString, Record> teachers = keyed(rows::all(rows::reference, "Ogretmen"), {"SICIL"});
        for (const Record& absence : rows::all(rows::term, "Devam") + rows::all(rows::term, "EtudDevam")) {
            QVERIFY(lessons.contains(absence["DKOD"].text()));
            for (const char* counter : {"IZINLI", "IZINSIZ", "RAPORLU"}) QVERIFY(!absence[counter].is_null());
            QVERIFY(absence["IZINLI"].number() + absence["IZINSIZ"].number() + absence["RAPORLU"].number() > 0);
        }
        QHash<QString, int> marks;
        const QList<Record> sessions = rows::all(rows::term, "Etud");
        for (const Record& session : sessions) {
            QVERIFY(teachers.contains(session["SICIL"].text()));
            QVERIFY(session["SAAT"].text() < session["BITSAAT"].text());
            QVERIFY(session["KONU"].text().size() <= 50 && !session["KONU"].text().isEmpty());
            ++marks[session["GIRDI"].text()];
        }
        QVERIFY(marks.size() == 2 && marks["X"] > 0 && marks[" "] > 0);
        QVERIFY2(keyed(sessions, {"TARIH", "SAAT", "SICIL"}).size() < sessions.size(), "no group session");
    }

    void due_dates_follow_the_months() {
        const std::pair<QDate, QString> firsts[]{{{2027, 1, 31}, "20270131 20270228 20270331 20270430 "},
                                                 {{2027, 12, 30}, "20271230 20280130 20280228 20280330 "}};
        for (const auto& [first, expected] : firsts) {
            QString keys;
            for (const QDate& date : sample::due_dates(first, 4)) keys += dates::key(date) + ' ';
            QCOMPARE(keys, expected);
        }
    }

    void same_seed_same_school() {
        const QByteArray first = whole_term(3);
        QVERIFY(first == whole_term(3));
        QVERIFY(first != whole_term(4));
    }

    void two_terms_share_the_cash_book() {
        const School school;
        school.add_term("2027");
        sample::fill_reference(rows::root);
        for (const QString term : {"2026", "2027"}) sample::fill_term(rows::root, term, 1, small());
        // The receipts of the second term go on behind those of the first.
        const auto numbers = [&](const QString& term) {
            QList<int> result;
            for (const rows::Record& payment : rows::all(school.data_file(term + "ogr.mdb"), "Tahsilat"))
                if (payment["BTIP"].text() == "M") result += payment["BNO"].text().toInt();
            std::ranges::sort(result);
            return result;
        };
        QCOMPARE(numbers("2027").first(), numbers("2026").last() + 1);
        QCOMPARE(rows::all(rows::term, "Odeme").size(), 30 * 10);
        QCOMPARE(rows::all(rows::term, "Devam").size(), 30 * 20);
    }
};

static const Registered<SampleTest> registered;
#include "sample_test.moc"
