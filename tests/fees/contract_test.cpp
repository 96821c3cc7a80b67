#include "fees_tests.h"
#include "paper_desk.h"
#include "platform/date_picker.h"
#include "support/paper_lines.h"

#include <QTest>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Operation = PrintSurface::Operation;

void fill_student(KurvoYeni& form) {
    const std::pair<QLineEdit*, const char*> texts[] = {
        {form.ADSOY, "AYŞE"},    {form.TEL, "555"},  {form.NCSNO, "A12"},   {form.VATNO, "111"},
        {form.DOGYER, "İZNİK"},  {form.IL, "BURSA"}, {form.ILCE, "İNEGÖL"}, {form.KOY, "Hamidiye"},
        {form.CILT, "1"},        {form.HANE, "2"},   {form.SIRA, "3"},      {form.KAYNO, "44"},
        {form.VERYER, "Kestel"}, {form.VGSM, "532"}, {form.VTEL, "224"},    {form.BABA, "CAN"},
        {form.BGSMTEL, "533"},   {form.ANNE, "SU"},  {form.AGSMTEL, "534"}, {form.AEVTEL, "225"}};
    for (const auto& [box, text] : texts) box->setText(QString::fromUtf8(text));
    const std::pair<QComboBox*, const char*> choices[] = {{form.SNF, "12A"},
                                                          {form.GELOKUL, "Atatürk Lisesi"},
                                                          {form.GRUP, "Hafta içi"},
                                                          {form.BOLUM, "Sayısal"},
                                                          {form.VERNEDEN, "Yenileme"}};
    for (const auto& [choice, text] : choices) {
        choice->addItem(QString::fromUtf8(text));
        choice->setCurrentIndex(choice->count() - 1);
    }
    form.DOGTAR->set_key(u"20090517"_s);
    form.VERTAR->set_key(u"20240301"_s);
}

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

void ContractTest::contract_without_clauses() {
    PaperDesk desk;
    fill_student(desk.form);
    desk.instalment(u"01.12.2026"_s, u"1.000"_s);
    desk.instalment(u"01.01.2027"_s, u""_s);
    desk.instalment(u"01.02.2027"_s, u"250"_s, u"250"_s, u"Nakit"_s);
    desk.form.CommandYAZ->click();
    QCOMPARE(desk.prompts.failures(), QStringList());
    const QStringList printed = paper_lines(desk.page());
    const QStringList told{
        "200,50 14 bi ÖZEL IŞIK",
        "5000,600 12 b ÖĞRENCİ SÖZLEŞMESİ",
        "200,600 12 - Sözleşme Tarihi : 24.11.2026",
        "500,1150-11000,1150",
        "1000,1200 10 b ÖĞRENCİ BİLGİLERİ",
        "700,1500 8 - Öğr.No - Tel",
        "1800,1500 8 - : 1250  /   555",
        "700,1700 8 - Adı Soyadı",
        "1800,1700 8 - : AYŞE",
        "700,1900 8 - Sınıfı",
        "1800,1900 8 - : 12A",
        "700,2100 8 - Okul/Dip.No",
        "1800,2100 8 - : Atatürk Lisesi",
        "700,2300 8 - Zaman / Alan",
        "1800,2300 8 - : Hafta içi  Sayısal",
        "700,2500 8 - Nüfus Cüz.No",
        "1800,2500 8 - : A12",
        "700,2700 8 - Vatandaş.No",
        "1800,2700 8 - : 111",
        "700,2900 8 - Doğ.Yer,Tar.",
        "1800,2900 8 - : İZNİK 17.05.2009",
        "700,3100 8 - İl-İlçe",
        "1800,3100 8 - : BURSA-İNEGÖL",
        "700,3300 8 - Mahalle/Köy",
        "1800,3300 8 - : Hamidiye",
        "700,3500 8 - Cilt-Hane-Sıra",
        "1800,3500 8 - : 1-2-3",
        "700,3700 8 - Kayıt No",
        "1800,3700 8 - : 44",
        "700,3900 8 - Ver.Ned Yer Tar ",
        "1800,3900 8 - : Yenileme Kestel 01.03.2024",
        "700,4100 8 - Veli TC No",
        "1800,4100 8 - : 12345678901",
        "700,4300 8 - Veli, GSM",
        "1800,4300 8 - : OYA YILDIRIM  532",
        "700,4500 8 - Baba, GSM",
        "1800,4500 8 - : CAN  533",
        "700,4700 8 - Anne, GSM",
        "1800,4700 8 - : SU  534",
        "700,4900 8 - Ev Tel",
        "1800,4900 8 - : 225",
        "700,5100 8 - Adres",
        "1800,5100 8 - : Çınar Mah. 5",
        "1800,5300 8 - Daire 3 Nilüfer BURSA",
        "7000,1200 10 b Ö D E M E L E R",
        "6000,1600 8 b Sno",
        "6500,1600 8 b Vade Tarihi",
        "7600,1600 8 b Tutar",
        "8300,1600 8 b Açıklama",
        "6000,1850-11000,1850",
        "6000,1950 8 - 1",
        "6500,1950 8 - 01.12.2026",
        "7920,1950 8 - 1.000",
        "8300,1950 8 - elden",
        "6000,2210 8 - 3",
        "6500,2210 8 - 01.02.2027",
        "8100,2210 8 - 250",
        "8300,2210 8 - elden",
        "500,1150-500,5850",
        "11000,1150-11000,5850",
        "500,5850-11000,5850",
        "500,5880 12 b Ödenecek Tutar : ",
        "2800,5880 14 b 1.250  TL.",
        "500,6350 10 - İşbu emre muharrer senedim    mukabilinde  ",
        "500,6600 10 - Sayın   ÖZEL IŞIK  veya emrühavale  ",
        "500,6850 10 - yukarıda yazılı yalnız  Bin İkiyüzElli  T.Lirası    Kuruş",
        "500,7100 10 - ödeyeceğim. Bedeli    ahzolunmuştur. İş bu bono vadesinde ödenmediği taktirde "
        "müteakip bonoların da",
        "500,7350 10 - muacceliyet kesbedeceğini, ihtilaf vukuunda  BURSA  mahkemelerinin "
        "selahiyetini şimdiden kabul ederim.",
        "500,7750 10 - Ödeyecek : OYA YILDIRIM        ( Tel: 224      GSM: 532 )",
        "8500,8050 10 - Tanzim Tarihi : 24.11.2026",
        "500,8050 10 - Adresi      : Çınar Mah. 5 Daire 3 Nilüfer BURSA"};
    for (qsizetype i = 0; i < std::min(printed.size(), told.size()); ++i) QCOMPARE(printed[i], told[i]);
    QCOMPARE(printed.size(), told.size());
    QCOMPARE(desk.papers.at(0).pages.size(), std::size_t(1));
}

void ContractTest::clauses_stand_in_a_frame() {
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

void ContractTest::long_texts_fill_closed_sheets_data() {
    QTest::addColumn<int>("clauses");
    QTest::addColumn<int>("instalments");
    QTest::addColumn<int>("sheets");
    // The first sheet has room for 61 clauses, from 1600 to 14800, the others for 65; of instalments for 51 and 52.
    QTest::newRow("note on a sheet of its own") << 35 << 10 << 2;
    QTest::newRow("clauses end with the sheet") << 61 << 0 << 2;
    QTest::newRow("student begins a sheet") << 60 << 0 << 2;
    QTest::newRow("400 clauses") << 400 << 3 << 7;
    QTest::newRow("plan on extra sheets") << 0 << 120 << 3;
    QTest::newRow("both") << 50 << 60 << 3;
}

void ContractTest::long_texts_fill_closed_sheets() {
    QFETCH(int, clauses);
    QFETCH(int, instalments);
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
    QCOMPARE(texts.count(u"Ev Tel"_s), 1);
    QCOMPARE(texts.count(u"Ödenecek Tutar : "_s), instalments > 0 ? 1 : 0);
    QTEST(int(pages.size()), "sheets");
}

void ContractTest::extra_sheet_goes_on_with_the_plan() {
    PaperDesk desk;
    for (int i = 1; i <= 52; ++i) desk.instalment(u"01.12.2026"_s, i == 2 ? u"0"_s : u"10"_s);
    desk.form.CommandYAZ->click();
    // 1950 + 50 rows of 260 is 14950: the 51st amount is the last one on the first sheet.
    QCOMPARE(paper_lines(desk.page()).filter(u"6000,14950"_s), QStringList("6000,14950 8 - 52"));
    QCOMPARE(desk.papers[0].pages.size(), std::size_t(2));
    desk.instalment(u"02.12.2026"_s, u"1.500,5"_s);
    desk.form.CommandYAZ->click();
    QCOMPARE(paper_lines(desk.page(1, 1)).first(18),
             QStringList({"500,700-11000,700", "7000,800 10 b Ö D E M E L E R  (Ek sayfa)", "6000,1200 8 b Sno",
                          "6500,1200 8 b Vade Tarihi", "7600,1200 8 b Tutar", "8300,1200 8 b Açıklama",
                          "6000,1450-11000,1450", "6000,1550 8 - 53", "6500,1550 8 - 02.12.2026",
                          "7740,1550 8 - 1.500,5", "8300,1550 8 - elden", "500,700-500,2160", "11000,700-11000,2160",
                          "500,2160-11000,2160", "500,2190 12 b Ödenecek Tutar : ", "2800,2190 14 b 2.011  TL.",
                          "500,2660 10 - İşbu emre muharrer senedim    mukabilinde  ",
                          "500,2910 10 - Sayın   ÖZEL IŞIK  veya emrühavale  "}));
}

void ContractTest::long_clauses_are_broken_at_blanks() {
    PaperDesk desk;
    const QByteArray words = QByteArray("kurumumuzca belirlenen ").repeated(13);  // 299 letters
    desk.put(PaperDesk::clauses_file, words + "\r\n" + QByteArray(" ") + QByteArray(300, 'w') + "\r\n");
    desk.form.CommandYAZ->click();
    PrintSurface measure({}, {});
    measure.font_size(8);
    QString joined, word;
    for (const Operation& operation : desk.page()) {
        if (operation.y < 1600 || operation.y >= 1600 + 220 * 8 || operation.font.points != 8) continue;
        if (operation.x == 800) joined += operation.text + u' ';
        if (operation.x == 1000) word += operation.text;
        if (operation.x == 800 || operation.x == 1000)
            QVERIFY(operation.x + measure.text_width(operation.text) <= 11000);
    }
    QCOMPARE(joined.simplified(), QString::fromLatin1(words).simplified());
    QCOMPARE(word, u' ' + QString(300, u'w'));
}

void ContractTest::longest_addresses_run_into_nothing() {
    PaperDesk desk;
    desk.instalment(u"01.12.2026"_s, u"1.000"_s);
    desk.form.ADRES1->setText(u"KÜÇÜKBAKKALKÖY MAH. MERDİVENKÖY YO."_s);
    desk.form.ADRES2->setText(u"ÇAMLICA SİTESİ B BLOK KAT 12 NO: 48"_s);
    desk.form.AILCE->setText(u"GÜMÜŞHACIKÖYÜ"_s);
    desk.form.AIL->setText(u"KAHRAMANMARAŞ"_s);
    desk.form.CommandYAZ->click();
    PrintSurface measure({}, {});
    for (const Operation& text : desk.page()) {
        measure.font(text.font);
        const double end = text.x + measure.text_width(text.text);
        if (text.x == 1800) QVERIFY2(end < 6000, qPrintable(text.text));
        if (text.text.startsWith(u"Adresi"_s)) QVERIFY2(end < 8500, qPrintable(text.text));
    }
    const QStringList texts = paper_texts(desk.page());
    QVERIFY(texts.last().endsWith(u"KAHRAMANMARAŞ"_s) && !texts.last().startsWith(u"Adresi"_s));
    QCOMPARE(texts.join(u' ').count(u"NO: 48 GÜMÜŞHACIKÖYÜ"_s), 2);
    QCOMPARE(texts.join(u' ').count(u"KAHRAMANMARAŞ"_s), 2);
}

void ContractTest::number_is_needed() {
    PaperDesk desk;
    desk.form.ONO->setText(u"0"_s);
    desk.form.CommandYAZ->click();
    QVERIFY(desk.papers.empty());
    desk.form.ONO->setText(u"7"_s);
    desk.put(PaperDesk::senet_file, "\"yalnız\"\r\n");
    desk.prompts.expect(u"Senet.txt hatalı, 1. satır: 2. değer"_s);
    desk.form.CommandYAZ->click();
    QVERIFY(desk.papers.empty());
    QCOMPARE(desk.prompts.failures(), QStringList());
}

void ContractTest::clauses_are_edited() {
    PaperDesk desk;
    desk.prompts.expect(u"Sozlesme.txt"_s).expect(u"Sözleşme Kaydedildi."_s).expect(u"U+03A9"_s);
    desk.form.CommandSOZLESME->click();
    QVERIFY(desk.form.FrameSozlesme->isHidden());
    desk.put(PaperDesk::clauses_file, "1- \xD6\xF0renci\r\n a) \xFE\xFD\xDD\r\n");
    desk.form.CommandSOZLESME->click();
    QVERIFY(!desk.form.FrameSozlesme->isHidden());
    QCOMPARE(desk.form.Text_Soz->toPlainText(), u"1- Öğrenci\n a) şıİ"_s);
    desk.form.Text_Soz->setPlainText(u"\n  2- Ücret\n\n b) €\n\n"_s);
    desk.form.CommandSave->click();
    QCOMPARE(desk.bytes(PaperDesk::clauses_file), QByteArray("2- \xDC"
                                                             "cret\r\n\r\n b) \x80\r\n"));
    desk.form.Text_Soz->setPlainText(u"Ω"_s);
    desk.form.CommandSave->click();
    QCOMPARE(desk.bytes(PaperDesk::clauses_file), QByteArray("2- \xDC"
                                                             "cret\r\n\r\n b) \x80\r\n"));
    desk.form.CommandGeridon->click();
    QVERIFY(desk.form.FrameSozlesme->isHidden());
    QCOMPARE(desk.prompts.failures(), QStringList());
}
