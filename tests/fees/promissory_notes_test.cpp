#include "paper_desk.h"
#include "support/paper_lines.h"
#include "support/run_all.h"

using namespace Qt::StringLiterals;

class PromissoryNotesTest : public QObject {
    Q_OBJECT

private slots:
    void note_stands_on_its_form() {
        PaperDesk desk;
        desk.instalment(u"05.10.2026"_s, u"1.250"_s, u"250"_s);
        desk.form.CommandSENET->click();
        desk.form.sx1->setText(u"dershane ücreti"_s);
        desk.form.sKEFIL->setText(u"ALİ KAYA"_s);
        desk.form.sADRES1k->setText(u"Gül Sk. 1"_s);
        desk.form.sADRES2k->setText(u"Osmangazi"_s);
        desk.form.sVN->setText(u"77"_s);
        desk.form.CommandSOK->click();
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(
            paper_lines(desk.page()),
            QStringList({
                "700,250 12 b Ödeme Tarihi : ",
                "5500,250 12 b Ödenecek Tutar : ",
                "2400,200 14 b 05.10.2026",
                "7700,200 14 b 1.000  TL.",
                "500,800 10 - İşbu emre muharrer senedim  dershane ücreti  mukabilinde  5 Ekim 2026  tarihinde",
                "500,1050 10 - Sayın   ÖZEL IŞIK  veya emrühavale  ",
                "500,1300 10 - yukarıda yazılı yalnız  Bin   T.Lirası    Kuruş",
                "500,1550 10 - ödeyeceğim. Bedeli    ahzolunmuştur. İş bu bono vadesinde ödenmediği taktirde müteakip "
                "bonoların da",
                "500,1800 10 - muacceliyet kesbedeceğini, ihtilaf vukuunda  BURSA  mahkemelerinin selahiyetini "
                "şimdiden "
                "kabul ederim.",
                "500,2200 10 - Ödeyecek : OYA YILDIRIM",
                "5900,2200 10 - Kefil : ALİ KAYA",
                "1450,2450 10 - Çınar Mah. 5",
                "6500,2450 10 - Gül Sk. 1",
                "1450,2700 10 - Daire 3",
                "6500,2700 10 - Osmangazi",
                "1450,2950 10 - Nilüfer  BURSA",
                "500,3200 10 - VD. ve No:  12345678901  77",
            }));
        QVERIFY(desk.form.Frame2->isHidden());
    }

    void sheets_hold_four() {
        for (const int notes : {4, 5}) {
            const QList<int> expected = notes == 4 ? QList<int>{4} : QList<int>{4, 1};
            PaperDesk desk;
            for (int i = 1; i <= notes; ++i) desk.instalment(u"0%1.01.2027"_s.arg(i), QString::number(i));
            desk.form.CommandSENET->click();
            desk.form.CommandSOK->click();
            desk.form.CommandSOK->click();
            QCOMPARE(desk.papers.size(), std::size_t(2));
            for (const PrintSurface::Document& paper : desk.papers) {
                QList<int> sheets;
                for (const PrintSurface::Page& page : paper.pages) {
                    sheets << static_cast<int>(paper_texts(page).count(u"Ödeme Tarihi : "_s));
                    for (int place = 0; place < sheets.last(); ++place)
                        QCOMPARE(page.at(static_cast<std::size_t>(place) * 15).y, 250.0 + 4200 * place);
                }
                QCOMPARE(sheets, expected);
                QCOMPARE(paper_lines(paper.pages.back()).filter(u" TL."_s).last(),
                         u"7700,%1 14 b %2  TL."_s.arg(200 + 4200 * ((notes - 1) % 4)).arg(notes));
            }
        }
    }

    void open_notes_alone_are_printed() {
        PaperDesk desk;
        desk.instalment(u"01.09.2026"_s, u"1.000"_s, u"1000"_s);
        desk.instalment(u"01.10.2026"_s, u"21.000"_s);
        desk.instalment(u"01.11.2026"_s, u"500"_s, u"0"_s, u"Nakit"_s);
        desk.instalment(u"31.12.2026"_s, u"100"_s, u"99"_s);
        desk.form.CommandSENET->click();
        desk.form.CommandSOK->click();
        const QStringList texts = paper_texts(desk.page());
        QCOMPARE(texts.filter(u"  TL."_s), QStringList({"21.000  TL.", "1  TL."}));
        QCOMPARE(texts.filter(u"yalnız"_s), QStringList({"yukarıda yazılı yalnız  YirmiBirBin   T.Lirası    Kuruş",
                                                         "yukarıda yazılı yalnız  Bir  T.Lirası    Kuruş"}));
    }

    void words_are_kept_in_their_file() {
        PaperDesk desk;
        desk.instalment(u"01.10.2026"_s, u"500"_s);
        desk.form.CommandSENET->click();
        QCOMPARE(desk.bytes(PaperDesk::senet_file),
                 QByteArray("\"\",\"\xD6ZEL I\xDEIK\",\"\",\"m.\",\"\",\"BURSA\",\"m.\"\r\n"));
        desk.form.sx6->setText(u"İZMİR, \"Konak\""_s);
        desk.form.CommandSOK->click();
        desk.session.schoolName = u"BAŞKA"_s;
        desk.form.CommandSENET->click();
        QCOMPARE((QStringList{desk.form.sx2->text(), desk.form.sx6->text(), desk.form.sx7->text()}),
                 (QStringList{"ÖZEL IŞIK", "İZMİR, \"Konak\"", "m."}));
    }
};

static const Registered<PromissoryNotesTest> registered;
#include "promissory_notes_test.moc"
