#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "register/program.h"
#include "support/grids.h"
#include "support/run_all.h"
#include "support/school.h"

namespace {

// The program with the students 1250 to 1252, lessons FZ and MT, teachers 7 and 12.
struct Desk {
    // `sessions` are rows of Etud as etud() gives them.
    explicit Desk(const QStringList& sessions = {}) {
        fatal::set_handler([this](const std::exception& error) { failures << QString::fromUtf8(error.what()); });
        school.lesson("MT", "Matematik").lesson("FZ", "Fizik").teacher(7, "AYŞE (VEKİL)").teacher(12, "BARIŞ");
        for (const int number : {1250, 1251, 1252}) school.student(number).name("AD");
        for (const QString& session : sessions) {
            const QStringList row = session.split(u'|');
            school.add("Etud", {{"ONO", row[0]},
                                {"TARIH", row[1]},
                                {"SAAT", row[2]},
                                {"BITSAAT", row[3]},
                                {"KOD", row[4]},
                                {"SICIL", row[5]},
                                {"GIRDI", row[6]},
                                {"KONU", row[7]}});
        }
        school.hand_over({});
        if (!program.start() || !QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
        kurvo.FEtud_TARIH->set_key("20261124");
    }
    ~Desk() { fatal::set_handler({}); }

    // Real keys into a box, in place of what stood there.
    static void type(QLineEdit* box, const QString& keys, Qt::Key then = Qt::Key_Shift) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, keys);
        QTest::keyClick(box, then);
    }
    void show_student(int number) { type(kurvo.LONO, QString::number(number), Qt::Key_Return); }
    void open_panel() { QTest::mouseClick(kurvo.CommandETUD, Qt::LeftButton); }
    QStringList etud() const {
        return school.rows("Etud", {"ONO", "TARIH", "SAAT", "BITSAAT", "KOD", "SICIL", "GIRDI", "KONU"});
    }

    QStringList failures;
    School school;
    Program program;
    Kurvo& kurvo = program.form();
    prompt::Script prompts;
};

}  // namespace

class StudyTest : public QObject {
    Q_OBJECT

private slots:
    // One session for two students by keys alone: the fields stay, number and Enter twice bring the next one.
    void students_in_a_row() {
        Desk desk;
        Kurvo& kurvo = desk.kurvo;
        desk.open_panel();
        QVERIFY(!kurvo.Frame_Etud->isVisible());  // nobody is on the card
        desk.show_student(1250);
        desk.open_panel();
        QVERIFY(kurvo.FEtud_TARIH->hasFocus() && kurvo.default_button() == kurvo.CommanOK);
        desk.type(kurvo.FEtud_SAAT, "7");
        desk.type(kurvo.FEtud_BITSAAT, "25");
        QVERIFY(kurvo.FEtud_BITDAKIKA->hasFocus());
        desk.type(kurvo.FEtud_BITDAKIKA, "75");

        desk.prompts.expect("Öğretmen seçiniz").expect("Ders seçiniz");
        QTest::keyClick(kurvo.FEtud_BITDAKIKA, Qt::Key_Return);
        kurvo.FEtud_SICIL->setCurrentIndex(0);
        desk.type(kurvo.FEtud_DKOD->lineEdit(), "XY", Qt::Key_Return);
        QCOMPARE(desk.prompts.seen(), QStringList({"|Öğretmen seçiniz", "|Ders seçiniz"}));
        QCOMPARE(kurvo.FEtud_SAAT->text() + kurvo.FEtud_BITSAAT->text() + kurvo.FEtud_BITDAKIKA->text(), "72459");
        desk.type(kurvo.FEtud_DKOD->lineEdit(), "QMT.", Qt::Key_Return);
        desk.show_student(1251);
        QTest::keyClick(kurvo.LONO, Qt::Key_Return);
        QVERIFY(kurvo.LONO->hasFocus());
        QCOMPARE(desk.etud(), QStringList({"1250|20261124|0700|2459|MT|7| | ", "1251|20261124|0700|2459|MT|7| | "}));
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo1, 1), QStringList("24.11.2026|07:00|24:59|Matematik|AYŞE (VEKİL)| "));
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo2, 1), QStringList("07:00|24:59|Matematik|2|AYŞE (VEKİL)| "));
        QCOMPARE(grid_rows(*kurvo.FToplu_DERSLER_ETUD, 1), QStringList({"FZ|Fizik||", "MT|Matematik|1|1"}));
    }

    // What was attended keeps its mark and stays; with another number in the box it would be nobody's.
    void taken_over_and_cancelled() {
        Desk desk({"1251|20261124|0900|1030|MT|7| | ", "1250|20261124|0900|1000|XX|12|X|Türev",
                   "1250|20261124|1100|1200|FZ|12| | "});
        Kurvo& kurvo = desk.kurvo;
        desk.show_student(1250);
        desk.open_panel();
        kurvo.FEtud_DKOD->setCurrentIndex(0);
        click_cell(*kurvo.FEtud_Tablo2, 1, 2);
        QCOMPARE(kurvo.FEtud_DKOD->currentText() + kurvo.FEtud_SICIL->currentText(), "Fizik   (FZ)BARIŞ  (12)");
        click_cell(*kurvo.FEtud_Tablo2, 2, 5);
        QTest::keyClick(kurvo.FEtud_SAAT, Qt::Key_Return);
        QVERIFY(kurvo.FEtud_SAAT->hasFocus());
        const QString changed = "1250|20261124|0900|1030|MT|7|X| ", other = "1251|20261124|0900|1030|MT|7| | ";
        QCOMPARE(desk.etud(), QStringList({changed, "1250|20261124|1100|1200|FZ|12| | ", other}));

        desk.prompts.expect("Öğrenci etüdü almış, silinemez.");
        click_cell(*kurvo.FEtud_Tablo1, 1, 0, true);
        QCOMPARE(desk.prompts.seen(), QStringList("Dikkat|Öğrenci etüdü almış, silinemez."));
        kurvo.LONO->setText("1251");
        kurvo.FEtud_SAAT->setText("10");
        kurvo.CommanOK->click();
        click_cell(*kurvo.FEtud_Tablo1, 2, 0, true);
        QCOMPARE(desk.etud().size(), 3);
        kurvo.LONO->setText("1250");
        QTest::keyClick(kurvo.FEtud_Tablo1, Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(desk.etud(), QStringList({changed, other}));
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo1, 1), QStringList("24.11.2026|09:00|10:30|Matematik|AYŞE (VEKİL)| "));
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo2, 1), QStringList("09:00|10:30|Matematik|2|AYŞE (VEKİL)| "));
        // The press that leaves the number box brings 1251's sessions: none of these was meant.
        desk.type(kurvo.LONO, "1251");
        click_cell(*kurvo.FEtud_Tablo1, 1, 0, true);
        QVERIFY(kurvo.FEtud_Tablo1->hasFocus() && desk.etud() == QStringList({changed, other}));
        desk.show_student(1251);  // shown again as the box is left, the list is the same
        click_cell(*kurvo.FEtud_Tablo1, 1, 0, true);
        QCOMPARE(desk.etud(), QStringList(changed));
        const QStringList board("09:00|10:30|Matematik|1|AYŞE (VEKİL)| ");
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo2, 1), board);
        // Without a student there is the day still. A date half typed is taken while the form closes.
        emit kurvo.SDONEM->activated(0);
        QVERIFY(grid_rows(*kurvo.FEtud_Tablo1, 1).isEmpty() && !kurvo.FEtud_BASLIK2->text().isEmpty());
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo2, 1), board);
        kurvo.FEtud_TARIH->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(kurvo.FEtud_TARIH, "12");
        kurvo.close();
        QTRY_COMPARE(kurvo.FEtud_TARIH->key(), "20261112");
        QVERIFY(desk.failures.isEmpty());
    }

    void board_and_summaries() {
        const QString scratch = "c:\\qlm\\siletud.mdb";
        Desk desk({"1252|20261124|0900|1030|MT|7| |son", "1250|20261124|0900|1030|MT|7|X|ilk",
                   "1251|20261124|0900|1030|FZ|7| | ", "1250|20261124|0800|0900|ZZ|99| | ",
                   "1252|20261124|0800|0845|ZZ|99| | ", "1250|20261125|0800|0900|MT|12| | "});
        Kurvo& kurvo = desk.kurvo;
        QCOMPARE(grid_rows(*kurvo.FEtud_Tablo2, 1),
                 QStringList({"08:00|08:45|ZZ|1|99| ", "08:00|09:00|ZZ|1|99| ", "09:00|10:30|Fizik|1|AYŞE (VEKİL)| ",
                              "09:00|10:30|Matematik|2|AYŞE (VEKİL)|son"}));
        const QString attended = "X|24.11.2026|09:00|Matematik|AYŞE (VEKİL)|ilk",
                      missed = " |25.11.2026|08:00|Matematik|BARIŞ| ", untaught = " |24.11.2026|08:00|ZZ|99| ";
        desk.show_student(1250);
        QCOMPARE(grid_rows(*kurvo.FToplu_ETUDLER, 1), QStringList({untaught, attended, missed}));
        QCOMPARE(grid_rows(*kurvo.FToplu_DERSLER_ETUD, 1), QStringList({"FZ|Fizik||", "MT|Matematik|2|1"}));

        kurvo.panel_goster(Kurvo::Panel::Toplu);
        kurvo.SSTab1->setCurrentIndex(2);
        click_cell(*kurvo.FToplu_DERSLER_ETUD, 2, 1);  // on the name
        QCOMPARE(grid_rows(*kurvo.FToplu_ETUDLER, 1), QStringList({attended, missed}));
        click_cell(*kurvo.FToplu_DERSLER_ETUD, 1, 2);
        QCOMPARE(grid_rows(*kurvo.FToplu_ETUDLER, 1), QStringList());
        emit kurvo.SDONEM->activated(0);
        click_cell(*kurvo.FToplu_DERSLER_ETUD, 2, 2);  // nothing of the former student comes back
        QCOMPARE(grid_rows(*kurvo.FToplu_ETUDLER, 1), QStringList());

        // A day without sessions does not ask for the scratch file; another one refuses what is not its own.
        QVERIFY(!paths::exists(scratch));
        desk.school.drives.put("c/qlm/siletud.mdb", "kalan");
        kurvo.FEtud_TARIH->set_key("20261126");
        QCOMPARE(kurvo.FEtud_BASLIK2->text(), "26.11.2026 tarihindeki etüdler :");
        QVERIFY(grid_rows(*kurvo.FEtud_Tablo2, 1).isEmpty() && desk.failures.isEmpty());
        kurvo.FEtud_TARIH->set_key("20261125");
        QVERIFY(desk.failures.takeFirst().contains(scratch + " önceki bir çalışmadan kalmış"));
        QVERIFY(paths::exists(scratch) && paths::remove(scratch) && paths::remove(desk.school.reference_file()));
        kurvo.FEtud_TARIH->set_key("20261124");
        QVERIFY(desk.failures.takeFirst().contains("Bilgi.mdb") && !paths::exists(scratch));
    }
};

static const Registered<StudyTest> registered;
#include "study_test.moc"
