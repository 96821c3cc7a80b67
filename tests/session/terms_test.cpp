#include "session/terms.h"

#include "forms/kurvo.h"
#include "known_session.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "support/refusal.h"
#include "support/run_all.h"

#include <QAbstractItemView>
#include <QRegularExpression>

namespace {

void add_student(const School& school, const QString& term, int number) {
    auto database = store::OpenDatabase(school.data_file(term + "ogr.mdb"));
    auto students = database.OpenRecordset("Ogrenci");
    students.AddNew();
    students["ONO"] = number;
    students.Update();
}

// A form whose list is filled as the register fills it, with the numbers alone.
struct Desk {
    explicit Desk(const School& school) : session(known_session(school)), terms(kurvo, session) {
        QObject::connect(&terms, &Terms::opened, &kurvo, [this] {
            kurvo.TABLO->set_rows(0);
            store::scan_all(session.studentTable, [&] {
                kurvo.TABLO->set_rows(kurvo.TABLO->rows() + 1);
                kurvo.TABLO->set_text(kurvo.TABLO->rows() - 1, 1, session.studentTable["ONO"].text());
            });
        });
        kurvo.TABLO->set_columns(3);
        terms.open();
        terms.donem_listele();
        kurvo.show();
    }

    QString listed_terms() const {
        QString codes;
        for (int i = 0; i < kurvo.SDONEM->count(); ++i) codes += kurvo.SDONEM->itemText(i) + '|';
        return codes;
    }
    QString listed_numbers() const {
        QString numbers;
        for (int row = 0; row < kurvo.TABLO->rows(); ++row) numbers += kurvo.TABLO->text(row, 1) + '|';
        return numbers;
    }
    // What a clerk sees after a student was shown, a search made and an amount typed.
    void show_student() {
        session.studentSelected = true;
        session.shownStudent = 1250;
        session.photoFile = QStringLiteral("2026_1250.bmp");
        session.listSortColumn = 2;
        kurvo.LONO->setText("1250");
        kurvo.Image1->setPixmap(QPixmap(4, 4));
        QCOMPARE(shown().size(), 23 + 7 + 7);
        for (QWidget* control : shown()) control->setProperty("text", "x");
        kurvo.FSBUL_msg->show();
        for (GridView* grid : {kurvo.TABLO_SBUL, kurvo.FTahsil_Tablo2}) {
            grid->set_columns(4);
            grid->set_rows(2);
        }
        for (QPushButton* button : {kurvo.CommandDEVAMSIZLIK, kurvo.CommandETUD, kurvo.CommandTOPLU}) button->show();
        for (GridView* grid : panel_grids()) {
            grid->set_columns(6);
            grid->set_rows(3);
        }
        for (GridView* grid : lesson_grids()) {
            grid->set_columns(5);
            grid->set_rows(2);
            grid->set_row(1, {"01", "MATEMATİK", "3", "4"});
        }
        for (QTextEdit* note : {static_cast<QTextEdit*>(kurvo.Text1), kurvo.FToplu_Text1}) note->setPlainText("not");
        kurvo.FToplu_TOP3e->setText("4");
    }
    // Grids of the panels that follow the card; their heading row stays.
    std::vector<GridView*> panel_grids() const {
        return {kurvo.FDevam_Tablo2,  kurvo.FEtud_Tablo1,   kurvo.FToplu_DEVAMS,
                kurvo.FToplu_DEVAMSe, kurvo.FToplu_ETUDLER, kurvo.FToplu_Tablo2};
    }
    std::vector<GridView*> lesson_grids() const {
        return {kurvo.FToplu_DERSLER, kurvo.FToplu_DERSLERe, kurvo.FToplu_DERSLER_ETUD};
    }
    // The card's labels and the boxes that the former student filled; tax office and number are typed by hand.
    QList<QWidget*> shown() const {
        QList<QWidget*> controls = kurvo.findChildren<QWidget*>(QRegularExpression(
            "^(L[A-Z]+|TTUTAR|TODENEN|TBORC|fA[A-Z]+[12]?|fI.*|(KASA)?ODENEN|MAZERET|FToplu_(KTUTAR|TFARK|OO_.))$"));
        controls.removeOne(kurvo.LONO);
        return controls;
    }
    // The names of the controls that still show something of a student.
    QString left_over() const {
        QStringList names;
        for (const QWidget* control : shown())
            if (!control->property("text").toString().isEmpty()) names += control->objectName();
        if (!kurvo.LONO->text().isEmpty()) names += "LONO";
        if (!kurvo.FSBUL_msg->isHidden()) names += "FSBUL_msg";
        if (!kurvo.Image1->pixmap(Qt::ReturnByValue).isNull()) names += "Image1";
        for (const GridView* grid : {kurvo.TABLO_SBUL, kurvo.FTahsil_Tablo2})
            if (grid->rows() > 0) names += grid->objectName();
        for (const GridView* grid : panel_grids())
            if (grid->rows() > 1) names += grid->objectName();
        for (const GridView* grid : lesson_grids())
            if (grid->rows() != 2 || grid->text(1, 1) != "MATEMATİK" || !grid->text(1, 2).isEmpty())
                names += grid->objectName();
        for (const QTextEdit* note : {static_cast<QTextEdit*>(kurvo.Text1), kurvo.FToplu_Text1})
            if (!note->toPlainText().isEmpty()) names += note->objectName();
        if (kurvo.FToplu_TOP2->text() + kurvo.FToplu_TOP3e->text() != "00") names += "FToplu_TOP";
        return names.join(' ');
    }

    Kurvo kurvo;
    SessionContext session;
    Terms terms;
};

}  // namespace

class TermsTest : public QObject {
    Q_OBJECT

private slots:
    void current_term_comes_first() {
        const School school;
        for (const QString term : {"2025", "2024 yaz", "B", ""}) school.add_term(term);
        for (const char* name : {"2023ogr.txt", "2022OGR.MDB", "ara_ogr_2026ogr.mdb"})
            school.drives.put(QString("c/okul/data/") + name, "cut at the first; no term by its exact name");
        add_student(school, "", 9);
        Desk desk(school);
        QCOMPARE(desk.listed_terms(), "2026|2024 yaz|2025|B|ara_||");
        QCOMPARE(desk.kurvo.SDONEM->currentIndex(), 0);
        desk.kurvo.SDONEM->setCurrentIndex(5);  // an empty code is a term too
        desk.terms.donem_degistir();
        QCOMPARE(desk.listed_numbers(), "9|");
    }

    void switch_by_keys_forgets_the_student() {
        const School school;
        school.add_term("2025");
        for (const int number : {1250, 7}) add_student(school, "2026", number);
        add_student(school, "2025", 31);
        Desk desk(school);
        QCOMPARE(desk.listed_numbers(), "7|1250|");
        desk.show_student();
        QStringList heard;
        connect(&desk.terms, &Terms::leaving, this, [&] { heard += "leaving " + desk.session.termCode; });
        connect(&desk.terms, &Terms::opened, this, [&] { heard += "opened " + desk.session.termCode; });
        desk.kurvo.SDONEM->setFocus();
        QTest::keyClick(desk.kurvo.SDONEM, Qt::Key_Down);

        QCOMPARE(heard, (QStringList{"leaving 2026", "opened 2025"}));
        QCOMPARE(desk.left_over(), "");
        QCOMPARE(desk.listed_numbers(), "31|");
        const SessionContext& session = desk.session;
        QCOMPARE(session.listRowCount, 1);
        QCOMPARE(session.listSortColumn, 1);
        QVERIFY(session.termDbOpen && !session.studentSelected && !session.card_is_of("1250"));
        QVERIFY(session.photoFile.isEmpty());

        // A file that has vanished leaves no term open.
        QVERIFY(paths::remove(school.data_file("2026ogr.mdb")));
        desk.kurvo.SDONEM->setCurrentIndex(0);
        const QString words = refusal([&] { desk.terms.donem_degistir(); });
        QVERIFY2(words.contains("2026ogr.mdb"), qPrintable(words));
        QVERIFY(!session.termDbOpen && !session.termDb.is_open());
        desk.terms.close();
    }

    void current_term_reloads_too() {
        const School school;
        Desk desk(school);
        desk.show_student();
        add_student(school, "2026", 5);  // at another workstation
        desk.terms.leave_student();
        QCOMPARE(desk.left_over(), "FSBUL_msg TABLO_SBUL");
        QVERIFY(!desk.session.studentSelected);
        QCOMPARE(desk.listed_numbers(), "");

        desk.kurvo.SDONEM->showPopup();
        QTest::keyClick(desk.kurvo.SDONEM->view(), Qt::Key_Return);
        QCOMPARE(desk.left_over(), "");
        QCOMPARE(desk.listed_numbers(), "5|");
    }
};

static const Registered<TermsTest> registered;
#include "terms_test.moc"
