#include "desk.h"
#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/screen_units.h"

namespace {

const Row ayse{{"ONO", 1250},    {"ADSOY", "AYŞE NUR YILDIRIM"},
               {"SINIF", "12A"}, {"VATNO", "12345678901"},
               {"GRUP", 3},      {"BOLUM", "2"},
               {"DIN", 12},      {"KAYTAR", "20260905"},
               {"VELI", "FATMA"}};
const Row baris{{"ONO", 7}, {"ADSOY", "BARIŞ ÇELİK"}, {"SINIF", "9Z"}};

}  // namespace

class StudentCardTest : public QObject {
    Q_OBJECT

private slots:
    void number_shows_the_card() {
        Desk desk({baris, ayse});
        desk.type_number("1a2,-5ğ0");
        const Kurvo& form = desk.kurvo;
        QStringList shown;
        for (const QLabel* label : std::initializer_list<const QLabel*>{
                 form.LADSOYAD, form.LTCNO, form.LSNF, form.LKAYTAR, form.LGRUP, form.LBOLUM, form.LDIN})
            shown << label->text();
        QCOMPARE(shown.join(u'|'),
                 QString("AYŞE NUR YILDIRIM| 12345678901|12A Sayısal grubu| 05.09.2026|Hİ-Öğle|Sayısal|Mezun"));
        QCOMPARE(desk.session.shownStudent, 1250);

        desk.type_number("7", Qt::Key_Tab);
        QCOMPARE(form.LSNF->text(), "9Z ");  // a class without a row
        QVERIFY(!form.LONO->property("differs").toBool());
        for (const QString& number : {QString("1251"), QString(400, u'9')}) {
            desk.type_number(number);
            QCOMPARE(form.LADSOYAD->text(), "BARIŞ ÇELİK");
            QVERIFY(desk.session.studentSelected && form.LONO->property("differs").toBool());
        }
    }

    void marked_button_waits_for_the_card() {
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

    void leaver_and_hidden_student() {
        Desk desk({{{"ONO", 8}, {"ADSOY", "CAN"}, {"AYYER", "Taşındı"}, {"ACK", "x"}, {"SAKLA", 1}}});
        desk.session.hideArchived = "1";
        desk.type_number("8");
        QCOMPARE(desk.kurvo.LADSOYAD->text(), "CAN ");
        QCOMPARE(desk.kurvo.LACK->text(), " Taşındı");
        QCOMPARE(desk.kurvo.LACK->palette().color(QPalette::WindowText), screen_units::color(0x8080FF));
    }

    void rights_choose_what_is_filled() {
        Desk desk({ayse});
        Kurvo& form = desk.kurvo;
        form.hide();
        form.LONO->setText("1250");
        for (QPushButton* button : {form.CommandTAHSILAT, form.CommandDEVAMSIZLIK, form.CommandETUD, form.CommandTOPLU})
            button->hide();
        desk.card.ogrenci_goster();
        QCOMPARE(desk.followed, QStringList());
        form.CommandTOPLU->show();
        desk.card.ogrenci_goster();
        QCOMPARE(desk.followed, (QStringList{"devam_toplu", "etud_toplu", "odeme"}));
        desk.followed.clear();
        form.CommandDEVAMSIZLIK->show();
        form.CommandETUD->show();
        desk.card.ogrenci_goster();
        QCOMPARE(desk.followed, (QStringList{"devam_toplu", "etud_toplu", "odeme", "devam", "etud"}));
    }

    void photo() {
        const auto with_photo = [](int number, const QString& name) {
            return Row{{"ONO", number}, {"ADSOY", "CAN"}, {"RESIM", rich_text::from_plain(name)}};
        };
        Desk desk({with_photo(1, "can.bmp"), with_photo(2, "c:\\qlm\\can.bmp"), with_photo(3, "bozuk.bmp")});
        QImage picture(400, 200, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(paths::native("c:\\okul\\foto\\can.bmp"), "BMP"));
        QVERIFY(picture.save(paths::native("c:\\qlm\\can.bmp"), "BMP"));
        desk.drives.put("c/okul/foto/bozuk.bmp", "BM cut off");
        const auto shown = [&] { return desk.kurvo.Image1->pixmap(); };
        for (const QString& number : {QString("1"), QString("2")}) {
            desk.type_number(number);
            QCOMPARE(shown().toImage().pixelColor(10, 10), QColor(Qt::blue));
            QCOMPARE(shown().width(), desk.kurvo.Image1->contentsRect().width());
            QCOMPARE(shown().height(), shown().width() / 2);
        }
        desk.type_number("3");
        QVERIFY(shown().isNull());
    }
};

static const Registered<StudentCardTest> registered;
#include "student_card_test.moc"
