#include "session/terms.h"

#include "forms/kurvo.h"
#include "office.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "session_tests.h"

#include <QAbstractItemView>
#include <QRegularExpression>
#include <QTest>

namespace {

// A form whose list is filled as the register fills it, with the numbers alone.
struct Desk {
    explicit Desk(SessionContext values) : session(std::move(values)), terms(kurvo, session) {
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

    QStringList listed_terms() const {
        QStringList codes;
        for (int i = 0; i < kurvo.SDONEM->count(); ++i) codes.append(kurvo.SDONEM->itemText(i));
        return codes;
    }
    QStringList listed_numbers() const {
        QStringList numbers;
        for (int row = 0; row < kurvo.TABLO->rows(); ++row) numbers.append(kurvo.TABLO->text(row, 1));
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
        QCOMPARE(shown_labels().size(), 23);
        QCOMPARE(shown_boxes().size(), 7);
        for (QLabel* label : shown_labels()) label->setText("x");
        for (QLineEdit* box : shown_boxes()) box->setText("x");
        kurvo.TABLO_SBUL->set_columns(4);
        kurvo.TABLO_SBUL->set_rows(2);
        kurvo.FTahsil_Tablo2->set_columns(7);
        kurvo.FTahsil_Tablo2->set_rows(3);
    }
    // The card's labels and the boxes that the former student filled; tax office and number are typed by hand.
    QList<QLabel*> shown_labels() const {
        return kurvo.findChildren<QLabel*>(QRegularExpression("^(L[A-Z]+|TTUTAR|TODENEN|TBORC)$"));
    }
    QList<QLineEdit*> shown_boxes() const {
        return kurvo.findChildren<QLineEdit*>(QRegularExpression("^(fA[A-Z]+[12]?|fI.*|(KASA)?ODENEN)$"));
    }
    // The names of the controls that still show something of a student.
    QStringList left_over() const {
        QStringList names;
        for (const QLabel* label : shown_labels())
            if (!label->text().isEmpty()) names.append(label->objectName());
        for (const QLineEdit* box : shown_boxes())
            if (!box->text().isEmpty()) names.append(box->objectName());
        if (!kurvo.LONO->text().isEmpty()) names.append("LONO");
        if (!kurvo.Image1->pixmap(Qt::ReturnByValue).isNull()) names.append("Image1");
        for (const GridView* grid : {kurvo.TABLO_SBUL, kurvo.FTahsil_Tablo2})
            if (grid->rows() > 0) names.append(grid->objectName());
        return names;
    }

    Kurvo kurvo;
    SessionContext session;
    Terms terms;
};

}  // namespace

void TermsTest::current_term_comes_first() {
    const Office office({"2026", "2025", "2024 yaz", "B"});
    Office::write(Office::data("2023ogr.txt"), "x");
    Office::write(Office::data("2022OGR.MDB"), "not a term by its exact name");
    Office::write(Office::data("ara_ogr_2026ogr.mdb"), "cut at the first");
    const Desk desk(office.session());
    QCOMPARE(desk.listed_terms(), (QStringList{"2026", "2024 yaz", "2025", "B", "ara_"}));
    QCOMPARE(desk.kurvo.SDONEM->currentIndex(), 0);
}

void TermsTest::switch_by_keys_forgets_the_student() {
    const Office office({"2026", "2025"});
    for (const int number : {1250, 7}) Office::student("2026", number, "AYŞE");
    Office::student("2025", 31, "CAN");
    Desk desk(office.session());
    QCOMPARE(desk.listed_numbers(), (QStringList{"7", "1250"}));
    desk.show_student();
    QStringList heard;
    connect(&desk.terms, &Terms::leaving, this, [&] { heard.append("leaving " + desk.session.termCode); });
    connect(&desk.terms, &Terms::opened, this, [&] { heard.append("opened " + desk.session.termCode); });

    desk.kurvo.SDONEM->setFocus();
    QTest::keyClick(desk.kurvo.SDONEM, Qt::Key_Down);

    QCOMPARE(heard, (QStringList{"leaving 2026", "opened 2025"}));
    QCOMPARE(desk.left_over(), QStringList());
    QCOMPARE(desk.listed_numbers(), QStringList{"31"});
    const SessionContext& session = desk.session;
    QCOMPARE(session.listRowCount, 1);
    QCOMPARE(session.listSortColumn, 1);
    QVERIFY(session.termDbOpen && !session.studentSelected && !session.card_is_of("1250"));
    QVERIFY(session.photoFile.isEmpty());
    desk.session.studentTable.Seek("=", {"1250"});
    QVERIFY2(desk.session.studentTable.NoMatch(), "the other term's students are not found any more");
}

void TermsTest::current_term_reloads_too() {
    const Office office;
    Desk desk(office.session());
    desk.show_student();
    Office::student("2026", 5, "ENTERED AT ANOTHER WORKSTATION");

    desk.kurvo.SDONEM->showPopup();
    QTest::keyClick(desk.kurvo.SDONEM->view(), Qt::Key_Return);
    QCOMPARE(desk.left_over(), QStringList());
    QCOMPARE(desk.listed_numbers(), QStringList{"5"});
}

void TermsTest::empty_code_opens_its_file() {
    const Office office({"2026", ""});
    Office::student("", 9, "DENİZ");
    Desk desk(office.session());
    QCOMPARE(desk.listed_terms(), (QStringList{"2026", ""}));
    desk.kurvo.SDONEM->setCurrentIndex(1);
    desk.terms.donem_degistir();
    QCOMPARE(desk.listed_numbers(), QStringList{"9"});
}

void TermsTest::vanished_file_leaves_no_term_open() {
    const Office office({"2026", "2025"});
    Desk desk(office.session());
    QVERIFY(paths::remove(Office::data("2025ogr.mdb")));
    desk.kurvo.SDONEM->setCurrentIndex(1);
    const QString words = refusal([&] { desk.terms.donem_degistir(); });
    QVERIFY2(words.contains("2025ogr.mdb"), qPrintable(words));
    QVERIFY(!desk.session.termDbOpen && !desk.session.termDb.is_open());
    desk.terms.close();
}
