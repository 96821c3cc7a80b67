#include "support/run_all.h"
#include "till.h"

class StatementTest : public QObject {
    Q_OBJECT

private slots:
    void open_instalments_stand_in_order_of_their_dates() {
        TillFiles files;
        files.instalment("20261201", 1250.5);
        files.instalment("20261001", 1000, 400);
        files.instalment("20261101", 500, 500);
        files.add(
            "Odeme",
            {{"ONO", 1250}, {"VADE", "20270101"}, {"TUTAR", 300}, {"ODENEN", 0}, {"ACK", "servis"}, {"ODSEK", 6}});
        files.instalment("20260901", 70, 0, 1249);
        files.instalment("20260901", 80, 0, 1251);
        Till till;
        till.pick();

        QCOMPARE(grid_rows(*till.kurvo.FTahsil_Tablo2, 0),
                 QStringList({" |01.10.2026|600|Nakit| | |", " |01.12.2026|1.250,5|Nakit| | |",
                              " |01.01.2027|300|İptal|servis||"}));
        QCOMPARE(QStringList({till.kurvo.TTUTAR->text(), till.kurvo.TODENEN->text(), till.kurvo.TBORC->text()}),
                 QStringList({"3050.5", "900", "2.150,5"}));
    }

    void every_instalment_shows_its_payments() {
        TillFiles files;
        files.instalment("20260901", 1000, 1000);
        files.instalment("20261001", 500, 200.5);
        files.instalment("20281001", 300);
        const auto payment = [&](const char* vade, const char* day, const char* time, double amount, const char* slip) {
            files.add(
                "Tahsilat",
                {{"ONO", 1250}, {"VADE", vade}, {"TARIH", day}, {"SAAT", time}, {"ODENEN", amount}, {"KASAFNO", slip}});
        };
        payment("20260901", "20260815", "091500", 600, "77");
        payment("20260901", "20260901", "101500", 400, " ");
        payment("20261001", "20261002", "101501", 200.5, "81");
        payment("20270101", "20261002", "101502", 5, "99");  // of no instalment
        Till till;
        till.kurvo.FToplu_KTUTAR->setText("2.000");
        till.pick();

        const GridView& grid = *till.kurvo.FToplu_Tablo2;
        QStringList shown;
        for (int row = 1; row < grid.rows(); ++row) {
            QStringList cells;
            for (const int column : {0, 2, 3, 4, 6, 7}) cells << grid.text(row, column);
            shown << cells.join('|') + ' ' + grid.back_color(row, 0).name();
        }
        QCOMPARE(shown, QStringList({"01.09.2026|1.000|1.000||77, |15/08/2026-600, 01/09/2026-400,  #c0ffc0",
                                     "01.10.2026|500|200,5|299,5|81, |02/10/2026-200.5,  #ffc0c0",
                                     "01.10.2028|300||300|| #000000"}));
        QCOMPARE(till.kurvo.FToplu_TFARK->text(), "200");
    }
};

static const Registered<StatementTest> registered;
#include "statement_test.moc"
