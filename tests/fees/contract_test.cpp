#include "paper_desk.h"
#include "support/paper_lines.h"
#include "support/run_all.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Operation = PrintSurface::Operation;

// The sides and the bottom of each frame meet, and the frames hold all texts that begin between them.
bool has_closed_frames(const PrintSurface::Page& page) {
    std::set<double> crossings;
    std::vector<std::pair<double, double>> left, right;
    for (const Operation& line : page) {
        if (line.kind != Operation::Kind::line) continue;
        if (line.x == 500 && line.x2 == 11000) crossings.insert(line.y);
        if (line.x == 500 && line.x2 == 500) left.emplace_back(line.y, line.y2);
        if (line.x == 11000 && line.x2 == 11000) right.emplace_back(line.y, line.y2);
    }
    const auto closed = [&](const auto& side) {
        return side.first < side.second && crossings.contains(side.first) && crossings.contains(side.second);
    };
    return !left.empty() && left == right && std::ranges::all_of(left, closed) && left.back().second < 16838;
}

}  // namespace

class ContractTest : public QObject {
    Q_OBJECT

private slots:
    void contract_without_clauses() {
        PaperDesk desk;
        desk.form.TEL->setText(u"555"_s);
        desk.form.ADSOY->setText(u"AYŞE"_s);
        desk.form.VTEL->setText(u"224"_s);
        desk.form.VGSM->setText(u"532"_s);
        desk.instalment(u"01.12.2026"_s, u"1.000"_s);
        desk.instalment(u"01.01.2027"_s, u""_s);
        desk.instalment(u"01.02.2027"_s, u"250"_s, u"250"_s, u"Nakit"_s);
        desk.form.CommandYAZ->click();
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(desk.papers.at(0).pages.size(), std::size_t(1));
        const QStringList printed = paper_lines(desk.page());
        for (const char* line :
             {"200,50 14 bi ÖZEL IŞIK", "200,600 12 - Sözleşme Tarihi : 24.11.2026", "1800,1500 8 - : 1250  /   555",
              "1800,1700 8 - : AYŞE", "700,4300 8 - Veli, GSM", "1800,4300 8 - : OYA YILDIRIM  532",
              "500,6850 10 - yukarıda yazılı yalnız  Bin İkiyüzElli  T.Lirası    Kuruş",
              "500,8050 10 - Adresi      : Çınar Mah. 5 Daire 3 Nilüfer BURSA"})
            QVERIFY2(printed.contains(QString::fromUtf8(line)), line);
        QCOMPARE(printed.mid(printed.indexOf(u"7000,1200 10 b Ö D E M E L E R"_s), 19),
                 QStringList({"7000,1200 10 b Ö D E M E L E R", "6000,1600 8 b Sno", "6500,1600 8 b Vade Tarihi",
                              "7600,1600 8 b Tutar", "8300,1600 8 b Açıklama", "6000,1850-11000,1850",
                              "6000,1950 8 - 1", "6500,1950 8 - 01.12.2026", "7920,1950 8 - 1.000",
                              "8300,1950 8 - elden", "6000,2210 8 - 3", "6500,2210 8 - 01.02.2027", "8100,2210 8 - 250",
                              "8300,2210 8 - elden", "500,1150-500,5850", "11000,1150-11000,5850",
                              "500,5850-11000,5850", "500,5880 12 b Ödenecek Tutar : ", "2800,5880 14 b 1.250  TL."}));
    }

    void clauses_stand_in_a_frame() {
        PaperDesk desk;
        desk.put(PaperDesk::clauses_file,
                 "1- \xDC"
                 "cret pe\xFEin al\xFDn\xFDr.\r\n\r\n a) Taksit\r\n");
        desk.form.CommandYAZ->click();
        const QStringList printed = paper_lines(desk.page());
        QCOMPARE(printed.mid(3, 8),
                 QStringList({"4000,1200 10 b SÖZLEŞME HÜKÜMLERİ", "500,1600-11000,1600",
                              "800,1600 8 - 1- Ücret peşin alınır.", "1000,2040 8 -  a) Taksit", "500,1600-500,2760",
                              "11000,1600-11000,2760", "500,2760-11000,2760", "1000,2710 10 b ÖĞRENCİ BİLGİLERİ"}));
        QVERIFY(printed.contains(u"7000,2710 10 b Ö D E M E L E R"_s));
        // No instalment has an amount: no note, and nothing behind the frame under the student's 20 lines.
        QCOMPARE(printed.last(), u"500,%1-11000,%1"_s.arg(2710 + 300 + 20 * 200 + 350));
    }

    void long_texts_fill_closed_sheets() {
        struct Length {
            int clauses, instalments;
            std::size_t sheets;
        };
        // The first sheet has room for 61 clauses, from 1600 to 14800, the others for 65; of instalments for 51 and 52.
        const Length lengths[] = {{35, 10, 2}, {61, 0, 2}, {400, 3, 7}, {50, 60, 3}};
        for (const auto& [clauses, instalments, sheets] : lengths) {
            PaperDesk desk;
            if (clauses > 0) {
                QByteArray lines;
                for (int i = 1; i <= clauses; ++i) lines += "Madde " + QByteArray::number(i) + "\r\n";
                desk.put(PaperDesk::clauses_file, lines);
            }
            for (int i = 1; i <= instalments; ++i) desk.instalment(u"01.12.2026"_s, u"10"_s);
            desk.form.CommandYAZ->click();
            const auto& pages = desk.papers.at(0).pages;
            QStringList texts;
            for (std::size_t i = 0; i < pages.size(); ++i) {
                texts += paper_texts(pages[i]);
                const bool note_alone = paper_texts(pages[i]).first() == u"Ödenecek Tutar : "_s;
                QVERIFY2(note_alone || has_closed_frames(pages[i]), qPrintable(QString::number(i + 1)));
                for (const Operation& operation : pages[i]) QVERIFY(operation.y < 16400);
            }
            for (int i = 1; i <= clauses; ++i) QCOMPARE(texts.count(u"Madde %1"_s.arg(i)), 1);
            QCOMPARE(texts.count(u"elden"_s), instalments);
            QCOMPARE(texts.count(u"ÖĞRENCİ BİLGİLERİ"_s), 1);
            QCOMPARE(texts.count(u"Ödenecek Tutar : "_s), instalments > 0 ? 1 : 0);
            QCOMPARE(pages.size(), sheets);
        }
    }

    void clauses_are_edited() {
        PaperDesk desk;
        desk.prompts.expect(u"Sözleşme Kaydedildi."_s).expect(u"U+03A9"_s);
        desk.put(PaperDesk::clauses_file, "1- \xD6\xF0renci\r\n a) \xFE\xFD\xDD\r\n");
        desk.form.CommandSOZLESME->click();
        QVERIFY(!desk.form.FrameSozlesme->isHidden());
        QCOMPARE(desk.form.Text_Soz->toPlainText(), u"1- Öğrenci\n a) şıİ"_s);
        for (const QString& text : {u"\n  2- Üst\n\n b) €\n  "_s, u"Ω"_s}) {
            desk.form.Text_Soz->setPlainText(text);
            desk.form.CommandSave->click();
            QCOMPARE(desk.bytes(PaperDesk::clauses_file), QByteArray("\r\n  2- \xDCst\r\n\r\n b) \x80\r\n\r\n"));
        }
        QCOMPARE(desk.prompts.failures(), QStringList());
    }
};

static const Registered<ContractTest> registered;
#include "contract_test.moc"
