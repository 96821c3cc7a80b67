#include "student_page.h"
#include "support/grids.h"

#include <QHeaderView>

namespace {

// The instalment of 1 October 2026 of student 12 with three collections, between those of others.
void collect(School& school) {
    const auto row = [&](int ono, const char* vade, const char* tarih, double odenen, const char* btip) {
        school.add("Tahsilat", {{"ONO", ono},
                                {"VADE", vade},
                                {"TARIH", tarih},
                                {"SAAT", "101500"},
                                {"ODENEN", odenen},
                                {"KASAFNO", "K7"},
                                {"BTIP", btip},
                                {"BNO", "41"},
                                {"FNO", "F9"}});
    };
    row(11, "20261001", "20261002", 1, "M");
    row(12, "20260901", "20261002", 2, "M");
    row(12, "20261001", "20261005", 1250.5, "M");
    row(12, "20261001", "20261106", 400, "F");
    row(12, "20261001", "20261120", 0, " ");
    row(12, "20261101", "20261102", 3, "M");
    row(121, "20261001", "20261002", 4, "M");
}

}  // namespace

class OverviewTest : public QObject {
    Q_OBJECT

private slots:
    void student_is_shown() {
        StudentPage page;
        page.school.student(12).set("KTUTAR", 12500).set("NOT", rich_text::from_plain("Çalışkan")).set("ORT9", 31.5);
        page.school.student(12).set("ORT10", 22).set("ORT11", 0).set("ORT12", 14);
        page.press(page.kurvo.CommandTOPLU);
        QVERIFY(!page.kurvo.Frame_Toplu->isVisible());  // nobody is on the card
        page.session.collectionsAllowed = 0;
        page.show_student(12);
        QCOMPARE(page.kurvo.FToplu_KTUTAR->text(), "");
        page.session.collectionsAllowed = 1;
        page.show_student(12);
        QCOMPARE(page.kurvo.FToplu_KTUTAR->text(), "12.500");
        QCOMPARE(page.kurvo.FToplu_Text1->toPlainText(), "Çalışkan");
        QStringList nets;
        for (std::size_t i = 4; i <= 7; ++i) nets << page.kurvo.FToplu_OO[i]->text();
        QCOMPARE(nets.join(u' '), "31.5 22 0 14");
        page.press(page.kurvo.CommandTOPLU);
        QCOMPARE(page.kurvo.shown_panel(), Kurvo::Panel::Toplu);
    }

    void collections_while_the_button_is_held() {
        StudentPage page;
        page.school.student(12);
        page.show_student(12);
        page.press(page.kurvo.CommandTOPLU);
        page.kurvo.SSTab1->setCurrentIndex(4);
        GridView& grid = *page.kurvo.FToplu_Tablo2;
        grid.set_rows(3);
        grid.set_text(1, 0, "01.09.2026");
        grid.set_text(2, 0, "01.10.2026");
        const QFrame& popup = *page.kurvo.Ftoplu_FTABLO3;
        const auto hold = [&](const QPoint& at) { QTest::mousePress(grid.viewport(), Qt::RightButton, {}, at); };
        const auto let_go = [&] { QTest::mouseRelease(grid.viewport(), Qt::RightButton); };

        QTest::mousePress(grid.horizontalHeader()->viewport(), Qt::RightButton);
        hold({200, 30});
        QVERIFY(!popup.isVisible());  // nobody has paid anything yet
        let_go();
        collect(page.school);
        hold({200, 10});
        QCOMPARE(grid_rows(*page.kurvo.FToplu_TABLO3, 0),
                 QStringList({"Tarih|Ödenen|Belge No|BTip|Kasa Fiş No", "05.10.2026|1.250,5|41|M|K7",
                              "06.11.2026|400|F9|F|K7", "20.11.2026||41| |K7"}));
        QVERIFY(popup.isVisible());
        QCOMPARE(popup.pos(), QPoint(page.kurvo.Frame_Toplu->mapTo(&page.kurvo, QPoint(201 - 142, 0)).x(),
                                     grid.viewport()->mapTo(&page.kurvo, QPoint(0, 10)).y()));
        // No collection is cut off.
        const GridView& collected = *page.kurvo.FToplu_TABLO3;
        QVERIFY(collected.viewport()->height() >= 3 * collected.verticalHeader()->defaultSectionSize());
        let_go();
        QVERIFY(!popup.isVisible());

        hold({grid.viewport()->width() - 1, grid.viewport()->height() - 1});
        QVERIFY(popup.isVisible() && page.kurvo.rect().contains(popup.geometry()));
        QTest::mouseRelease(collected.viewport(), Qt::RightButton);
        QVERIFY(!popup.isVisible());

        QTest::mousePress(grid.horizontalHeader()->viewport(), Qt::RightButton);
        QCOMPARE(collected.rows(), 4);  // of the current row still
        page.kurvo.panel_goster(Kurvo::Panel::Not);
        QVERIFY(!popup.isVisible());
    }
};

static const Registered<OverviewTest> registered;
#include "overview_test.moc"
