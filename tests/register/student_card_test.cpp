#include "register/student_card.h"

#include "desk.h"
#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/screen_units.h"
#include "register_tests.h"

#include <QTest>

namespace {

const Row ayse{{"ONO", 1250},          {"ADSOY", "AYŞE NUR YILDIRIM"},
               {"SINIF", "12A"},       {"VATNO", "12345678901"},
               {"KAYTAR", "20260905"}, {"GRUP", 3},
               {"BOLUM", "2"},         {"DIN", 12},
               {"ACK", "Kardeşi 9B"},  {"VELI", "FATMA YILDIRIM"},
               {"AIL", "İZMİR"},       {"BGSMTEL", "5321112233"}};
const Row baris{{"ONO", 7}, {"ADSOY", "BARIŞ ÇELİK"}, {"SINIF", "9Z"}};

// A picture that is told from any other by its one colour.
void save_picture(const QString& name, QSize size, const QColor& color) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    QVERIFY(picture.save(paths::native(name), "BMP"));
}

}  // namespace

void StudentCardTest::number_shows_the_card_data() {
    QTest::addColumn<int>("leaving_key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
}

void StudentCardTest::number_shows_the_card() {
    QFETCH(int, leaving_key);
    Desk desk({baris, ayse});
    desk.type_number("1250", Qt::Key(leaving_key));

    const Kurvo& form = desk.kurvo;
    QCOMPARE(form.LADSOYAD->text(), "AYŞE NUR YILDIRIM");
    QCOMPARE(form.LTCNO->text(), " 12345678901");
    QCOMPARE(form.LSNF->text(), "12A Sayısal grubu");
    QCOMPARE(form.LKAYTAR->text(), " 05.09.2026");
    QCOMPARE((QStringList{form.LGRUP->text(), form.LBOLUM->text(), form.LDIN->text()}),
             (QStringList{"Hİ-Öğle", "Sayısal", "Mezun"}));
    QCOMPARE(form.LBGSM->text(), " 5321112233");
    QCOMPARE(form.LACK->text(), " Kardeşi 9B");
    QCOMPARE(Desk::text_color(form.LACK), screen_units::color(0xC0FFFF));
    QCOMPARE((QStringList{form.fADSOY->text(), form.fIL->text()}), (QStringList{"FATMA YILDIRIM", "İZMİR"}));
    QVERIFY(desk.session.studentSelected);
    QCOMPARE(desk.session.shownStudent, 1250);

    desk.type_number("7");
    QCOMPARE(form.LSNF->text(), "9Z ");  // a class without a row
}

void StudentCardTest::only_digits_are_typed() {
    Desk desk({ayse});
    Desk::type(desk.kurvo.LONO, "1a2,-5ğ0");
    QTest::keyClick(desk.kurvo.LONO, Qt::Key_Backspace);
    QCOMPARE(desk.kurvo.LONO->text(), "1250");
}

void StudentCardTest::number_not_on_file_leaves_the_card_data() {
    QTest::addColumn<QString>("number");
    QTest::newRow("unknown") << "1251";
    QTest::newRow("longer than any number") << QString(400, u'9');
}

void StudentCardTest::number_not_on_file_leaves_the_card() {
    QFETCH(QString, number);
    Desk desk({baris, ayse});
    const auto is_calm = [&] { return !desk.kurvo.LONO->property("differs").toBool(); };
    QVERIFY(is_calm());  // nobody is on the card, and nobody asked for
    desk.type_number("7");
    QVERIFY(is_calm());
    desk.type_number(number);
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "BARIŞ ÇELİK");
    QVERIFY(desk.session.studentSelected);
    QVERIFY(!is_calm());
    desk.type_number("0007");
    QVERIFY(is_calm());
}

void StudentCardTest::marked_button_waits_for_the_card() {
    Desk desk({ayse});
    QPushButton save(&desk.kurvo);
    save.show();
    int saved = 0;
    connect(&save, &QPushButton::clicked, this, [&] { ++saved; });
    desk.to_mark = &save;
    desk.kurvo.CommandSBUL->setFocus();
    desk.kurvo.set_default_button(&save);

    desk.type_number("1250");
    QCOMPARE(saved, 0);
    QCOMPARE(desk.session.shownStudent, 1250);
    QTest::keyClick(desk.kurvo.LONO, Qt::Key_Return);
    QCOMPARE(saved, 1);
}

void StudentCardTest::unknown_codes_leave_their_labels() {
    const Row odd{{"ONO", 8}, {"ADSOY", "CAN"}, {"GRUP", 5}, {"BOLUM", " "}, {"DIN", store::Value()}};
    Desk desk({ayse, odd, {{"ONO", 9}, {"ADSOY", "EDA"}, {"BOLUM", "0"}}});
    const auto codes = [&] {
        return QStringList{desk.kurvo.LGRUP->text(), desk.kurvo.LBOLUM->text(), desk.kurvo.LDIN->text()};
    };
    desk.type_number("1250");
    desk.type_number("8");
    QCOMPARE(codes(), (QStringList{"Hİ-Öğle", "Sayısal", "Mezun"}));
    desk.type_number("9");
    QCOMPARE(codes(), (QStringList{"", "", ""}));
}

void StudentCardTest::leaver_and_hidden_student() {
    Desk desk({{{"ONO", 8}, {"ADSOY", "CAN"}, {"AYYER", "Taşındı"}, {"ACK", "x"}, {"KAYTAR", "2026"}, {"SAKLA", 1}}},
              QStringLiteral("1"));
    QCOMPARE(desk.kurvo.TABLO->rows(), 0);
    desk.type_number("8");
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "CAN ");
    QCOMPARE(desk.kurvo.LACK->text(), " Taşındı");
    QCOMPARE(Desk::text_color(desk.kurvo.LACK), screen_units::color(0x8080FF));
    QCOMPARE(desk.kurvo.LKAYTAR->text(), " ..2026");
}

void StudentCardTest::rights_choose_what_is_filled_data() {
    QTest::addColumn<QString>("rights");  // collections, attendance, sessions, overview
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << "0000" << QStringList();
    QTest::newRow("all") << "1111" << QStringList{"devam_toplu", "etud_toplu", "odeme", "devam", "etud"};
    QTest::newRow("no overview") << "1110" << QStringList{"odeme", "devam", "etud"};
    QTest::newRow("overview alone") << "0001" << QStringList{"devam_toplu", "etud_toplu", "odeme"};
}

void StudentCardTest::rights_choose_what_is_filled() {
    QFETCH(QString, rights);
    Desk desk({ayse});
    Kurvo& form = desk.kurvo;
    QPushButton* const buttons[] = {form.CommandTAHSILAT, form.CommandDEVAMSIZLIK, form.CommandETUD, form.CommandTOPLU};
    for (qsizetype i = 0; i < rights.size(); ++i) buttons[i]->setVisible(rights[i] == u'1');
    form.hide();
    form.LONO->setText("1250");
    desk.card.ogrenci_goster();
    QTEST(desk.followed, "expected");
}

void StudentCardTest::photo_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("bare name") << rich_text::from_plain("2026_7.bmp") << QColor(Qt::blue);
    QTest::newRow("full path") << rich_text::from_plain("c:\\qlm\\can.bmp") << QColor(Qt::green);
    QTest::newRow("missing") << rich_text::from_plain("yok.bmp") << QColor();
    QTest::newRow("damaged") << rich_text::from_plain("bozuk.bmp") << QColor();
    QTest::newRow("none") << rich_text::from_plain({}) << QColor();
}

void StudentCardTest::photo() {
    QFETCH(QString, stored);
    QFETCH(QColor, expected);
    Desk desk(
        {{{"ONO", 7}, {"ADSOY", "CAN"}, {"RESIM", stored}}, {{"ONO", 8}, {"ADSOY", "EDA"}, {"RESIM", "eda.bmp"}}});
    save_picture("c:\\okul\\foto\\2026_7.bmp", {400, 200}, Qt::blue);
    save_picture("c:\\qlm\\can.bmp", {400, 200}, Qt::green);
    save_picture("c:\\okul\\foto\\eda.bmp", {30, 30}, Qt::red);
    desk.drives.put("c/okul/foto/bozuk.bmp", "BM cut off");

    desk.type_number("8");
    QVERIFY(!desk.kurvo.Image1->pixmap().isNull());
    desk.type_number("7");
    const QPixmap shown = desk.kurvo.Image1->pixmap();
    QCOMPARE(shown.isNull(), !expected.isValid());
    if (shown.isNull()) return;
    QCOMPARE(shown.toImage().pixelColor(10, 10), expected);
    QCOMPARE(shown.width(), desk.kurvo.Image1->contentsRect().width());
    QCOMPARE(shown.height(), shown.width() / 2);
}

void StudentCardTest::student_without_name_is_refused() {
    Desk desk({{{"ONO", 8}, {"ADSOY", store::Value()}}});
    desk.kurvo.LONO->setText("8");
    try {
        desk.card.ogrenci_goster();
        QFAIL("a student without a name was shown");
    } catch (const std::runtime_error& error) {
        QVERIFY2(QString::fromUtf8(error.what()).contains("ADSOY"), error.what());
    }
}
