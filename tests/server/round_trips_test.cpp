#include "collections/grids.h"
#include "line.h"
#include "platform/clock.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "register/program.h"
#include "store/mariadb_engine.h"
#include "support/run_all.h"
#include "support/school.h"

#include <QElapsedTimer>

using store::MariadbEngine;

namespace {

constexpr int student = 1250, second = 1251;

// The program at a desk 5 ms away from its server.
class FarDesk : OnServer {
    const clock_source::Override clock_{[] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }};

public:
    template <typename Fill>
    explicit FarDesk(Fill fill) {
        school.lesson("MT", "Matematik").teacher(5, "ÖMER IŞIK").school_class("12A", "Sayısal grubu");
        school.drives.put("c/okul/data/KasaTip.txt", "TL\r\n");
        fill(school);
        QStringList files{"c:\\qlm\\Psys.mdb"};
        for (const QString& name : paths::files_in(school.data_file({}), ".mdb")) files << school.data_file(name);
        line = std::make_unique<Line>(files, 5);
        school.hand_over({});
        program = std::make_unique<Program>();
        program->start();
        if (!QTest::qWaitForWindowActive(&form())) qFatal("the form does not come up");
    }
    ~FarDesk() { form().close(); }

    Kurvo& form() { return program->form(); }
    void show_card(int number) {
        form().LONO->setText(QString::number(number));
        QTest::keyClick(form().LONO, Qt::Key_Return);
    }

    // What an act costs; the line must have counted as the engine has.
    template <typename Act>
    void measure(Act act) {
        const std::int64_t seen = line->round_trips(), told = MariadbEngine::round_trips();
        QElapsedTimer watch;
        watch.start();
        act();
        ms = watch.elapsed();
        trips = MariadbEngine::round_trips() - told;
        qInfo("%lld trips, %lld ms", static_cast<long long>(trips), static_cast<long long>(ms));
        QCOMPARE(line->round_trips() - seen, trips);
    }

    School school;
    std::unique_ptr<Line> line;
    prompt::Script prompts;
    std::unique_ptr<Program> program;
    std::int64_t trips = 0;
    qint64 ms = 0;
};

QString day(int place) {
    return dates::key(QDate(2026, 9, 1).addDays(place));
}

// So many rows in each table that the card and its panels show.
void give_rows(School& school, int number, int rows) {
    school.student(number);
    store::Database term = store::OpenDatabase(school.term_file());
    store::WriteScope scope(term);
    const auto fill = [&](const char* table, School::Fields fields) {
        store::Recordset records = term.OpenRecordset(table);
        fields.emplace_back("ONO", number);
        for (int row = 0; row < rows; ++row) {
            records.AddNew();
            for (const auto& [name, value] : fields) records[name] = value.is_null() ? store::Value(day(row)) : value;
            records.Update();
        }
    };
    const store::Value a_day;
    fill("Odeme", {{"VADE", a_day}, {"TUTAR", 100}, {"ODENEN", 0}, {"ACK", " "}, {"ODSEK", 2}, {"CYER", " "}});
    fill("Tahsilat", {{"VADE", a_day}, {"TARIH", a_day}, {"SAAT", "101500"}, {"ODENEN", 0}, {"KSAAT", "101500"}});
    for (const char* table : {"Devam", "EtudDevam"})
        fill(table, {{"TARIH", a_day}, {"DKOD", "MT"}, {"IZINLI", 1}, {"IZINSIZ", 0}, {"RAPORLU", 0}});
    for (const char* table : {"Dmazeret", "Emazeret"}) fill(table, {{"TARIH", a_day}, {"ACK", "rapor"}});
    fill("Etud", {{"TARIH", a_day}, {"SAAT", "0900"}, {"BITSAAT", "1000"}, {"KOD", "MT"}, {"SICIL", 5}});
    scope.commit();
}

}  // namespace

class RoundTripsTest : public QObject {
    Q_OBJECT

private slots:
    void card_with_all_its_panels_needs_at_most_40() {
        FarDesk desk([](School& school) {
            give_rows(school, student, 100);
            give_rows(school, second, 600);  // 128 rows in the first batch, up to 512 in the second
        });
        desk.measure([&] { desk.show_card(student); });
        QCOMPARE(desk.form().FTahsil_Tablo2->rows(), 100);
        QVERIFY(desk.trips <= 40);
        QVERIFY(desk.ms < 500);
        const std::int64_t of_few = desk.trips;
        desk.measure([&] { desk.show_card(second); });
        QCOMPARE(desk.form().FTahsil_Tablo2->rows(), 600);
        QVERIFY(desk.trips <= of_few + 7);  // tables
    }

    void list_and_walk_come_in_batches() {
        constexpr int students = 5000, walked = 1000;
        FarDesk desk([&](School& school) {
            school.student(student);
            give_rows(school, second, walked);
            store::Database term = store::OpenDatabase(school.term_file());
            store::Recordset records = term.OpenRecordset("Ogrenci");
            store::WriteScope scope(term);
            for (int number = second + 1; number < student + students; ++number) {
                records.AddNew();
                for (const auto& [name, value] : School::Fields{{"ONO", number}, {"ADSOY", "AYŞE NUR YILDIRIM"}})
                    records[name] = value;
                records.Update();
            }
            scope.commit();
        });
        StudentCard card(desk.form(), desk.program->session(), {});
        StudentList list(desk.form(), desk.program->session(), card);
        desk.measure([&] { list.ogrenci_listele(); });
        QCOMPARE(desk.form().TABLO->rows(), students);
        QVERIFY(desk.ms < 1000);

        store::Recordset odeme = desk.program->session().termDb.OpenRecordset("Odeme");
        int seen = 0;
        desk.measure([&] { store::scan_all(odeme, [&] { seen += odeme["VADE"].text() == day(seen); }); });
        QCOMPARE(seen, walked);
        QVERIFY(desk.trips <= 4);  // whether there are any; 128 rows, 512, and the rest
    }

    void posting_of_six_instalments_takes_less_than_a_second() {
        FarDesk desk([](School& school) { give_rows(school, student, 6); });
        desk.show_card(student);
        desk.form().CommandTAHSILAT->click();
        desk.form().ODENEN->setFocus();
        desk.form().ODENEN->setText("600");
        desk.form().CommandTAHSIL->click();
        desk.measure([&] { desk.form().CommandOK->click(); });
        QCOMPARE(desk.school.rows("Odeme", {"ODENEN"}), QStringList(6, "100"));
        QCOMPARE(desk.school.rows("Tahsilat", {"ODENEN"}).count("100"), 6);
        QCOMPARE(desk.school.rows("Kasa", {"TUTAR"}), QStringList("600"));
        QVERIFY(desk.ms < 1000);
    }
};

static const Registered<RoundTripsTest> registered;
#include "round_trips_test.moc"
