#include "platform/date_picker.h"
#include "platform/file_choice.h"
#include "platform/rich_text.h"
#include "record_desk.h"
#include "record_tests.h"

#include <QTest>

namespace {

const Row ayse{{"ONO", 1250},          {"ADSOY", "AYŞE NUR YILDIRIM"}, {"SINIF", "12A"}, {"TEL", "5321234567"},
               {"KAYTAR", "20260905"}, {"AYTAR", "20000101"},          {"BOLUM", "2"},   {"DIN", 11},
               {"DOGTAR", "20080229"}, {"KTUTAR", 1000},               {"USER", "ALİ"}};

QStringList entries(const QComboBox* list) {
    QStringList texts;
    for (int place = 0; place < list->count(); ++place) texts << list->itemText(place);
    return texts;
}

}  // namespace

void RecordFormTest::opens_on_the_student_of_the_card() {
    RecordDesk desk({ayse});
    KurvoYeni& form = desk.open("1250");
    QVERIFY(!desk.kurvo.isEnabled());
    QCOMPARE(form.ONO->text(), QString("1250"));
    QVERIFY(!form.ONO->isEnabled());
    QCOMPARE(form.ADSOY->text(), QString("AYŞE NUR YILDIRIM"));
    QVERIFY(form.CommandNODGS->isVisible());
    // The old value of what is published stays in sight.
    RecordDesk::fill(form.TEL, "5320000000");
    QCOMPARE(form.TEL->toolTip(), QString("5321234567"));
    QCOMPARE(form.KAYTAR->toolTip(), QString("05.09.2026"));
    QCOMPARE(form.SNF->toolTip(), QString("12A   Sayısal grubu"));

    QTest::keyClick(&form, Qt::Key_Escape);
    QVERIFY(form.isVisible());
    form.close();
    QVERIFY(desk.kurvo.isEnabled());
    QTRY_COMPARE(desk.kurvo.focusWidget(), static_cast<QWidget*>(desk.kurvo.CommandYENI));
    QVERIFY(desk.session.studentSelected);
    // The next opening begins anew.
    KurvoYeni& again = desk.open("1250");
    QCOMPARE(again.TEL->text(), QString("5321234567"));
}

void RecordFormTest::opens_empty_and_waits_for_a_number() {
    RecordDesk desk({ayse});
    KurvoYeni& form = desk.open();
    QVERIFY(form.ONO->hasFocus());
    QCOMPARE(form.USER->text(), QString("OYA"));
    QCOMPARE(form.KAYTAR->key(), QString("20261124"));
    QCOMPARE(form.AYTAR->key(), QString("20000101"));
    QVERIFY(!form.CommandNODGS->isVisible());
    // An empty number is looked for, not found, and locked.
    QTest::keyClick(form.ONO, Qt::Key_Tab);
    QVERIFY(!form.ONO->isEnabled());
    RecordDesk::press(form.CommandTEMIZLE);
    QVERIFY(form.ONO->hasFocus());
    desk.enter_number("1250");
    QCOMPARE(form.ADSOY->text(), QString("AYŞE NUR YILDIRIM"));
}

void RecordFormTest::row_stands_in_its_controls() {
    RecordDesk desk({{{"ONO", 7},
                      {"ADSOY", "  İKİ BOŞLUK "},
                      {"ACK", "hatırlatma"},
                      {"CINSIYET", 2},
                      {"KANGR", 4},
                      {"KANRH", 1},
                      {"RESIM", rich_text::from_plain("ayşe.bmp")},
                      {"KAYTAR", "20260331"},
                      {"DOGTAR", "20080229"},
                      {"GELOKUL", "ATATÜRK LİSESİ"},
                      {"BOLUM", "7"},
                      {"DIN", 13},
                      {"AYRI", 1},
                      {"SAVBEL", "1"},
                      {"OZELKOD", "X1"},
                      {"ORT9", 23.75},
                      {"ORT12", 4},
                      {"KTUTAR", 12500},
                      {"ISKONTO", 15},
                      {"USER", "ALİ"},
                      {"DURAKNO", 3}}});
    RecordDesk::instalment(7, "20261001", 4000, 1500);
    const KurvoYeni& form = desk.open("7");
    const std::initializer_list<std::pair<const QLineEdit*, QString>> boxes{
        {form.ADSOY, "İKİ BOŞLUK"}, {form.ACIKLAMA, "hatırlatma"}, {form.RESIM, "ayşe.bmp"}, {form.OO[4], "23.75"},
        {form.OO[7], "4"},          {form.KTUTAR, "12.500"},       {form.DURAKNO, "3"},      {form.EBORC, "4000"},
        {form.YODENEN, "1500"},     {form.EKALAN, "2500"},         {form.EGECIKEN, "2500"}};
    for (const auto& [box, text] : boxes) QCOMPARE(box->objectName() + box->text(), box->objectName() + text);
    const std::initializer_list<std::pair<const QComboBox*, QString>> lists{
        {form.CINSIYET, "Kız"}, {form.KANGR, "0"},     {form.KANRH, "Rh +"}, {form.GELOKUL, "ATATÜRK LİSESİ"},
        {form.BOLUM, "YÖS"},    {form.DIN, "-"},       {form.OZKOD, "X1"},   {form.ISKONTO, "15"},
        {form.SNF, " "},        {form.VERNEDEN, " "}};
    for (const auto& [choice, text] : lists)
        QCOMPARE(choice->objectName() + choice->currentText(), choice->objectName() + text);
    QCOMPARE(form.KAYTAR->key(), QString("20260331"));
    QCOMPARE(form.DOGTAR->key(), QString("20080229"));
    QVERIFY(form.AYRI->isChecked() && form.SAVBEL->isChecked() && !form.SAKLA->isChecked());
    QCOMPARE(form.USER->text(), QString("ALİ"));
}

void RecordFormTest::class_group_is_found_by_its_beginning_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("the whole code") << "12AB" << "12AB   Eşit ağırlık";
    QTest::newRow("the first entry that begins so") << "12" << "12A   Sayısal grubu";
    QTest::newRow("no such class") << "9Z" << " ";
    QTest::newRow("none") << " " << " ";
}

void RecordFormTest::class_group_is_found_by_its_beginning() {
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    RecordDesk desk({{{"ONO", 1}, {"SINIF", stored}}});
    QCOMPARE(desk.open("1").SNF->currentText(), shown);
}

void RecordFormTest::only_digits_make_a_number() {
    RecordDesk desk;
    KurvoYeni& form = desk.open();
    Desk::type(form.ONO, "1a2-5.");
    QTest::keyClick(form.ONO, Qt::Key_Backspace);
    QCOMPARE(form.ONO->text(), QString("125"));
    QTest::keyClick(form.ONO, Qt::Key_Home);
    QTest::keyClick(form.ONO, Qt::Key_Delete);
    QCOMPARE(form.ONO->text(), QString("25"));
}

void RecordFormTest::number_not_on_file_keeps_what_is_typed() {
    RecordDesk desk({ayse});
    KurvoYeni& form = desk.open();
    form.ANNE->setText("FATMA ");
    desk.enter_number("1251");
    QCOMPARE(form.ANNE->text(), QString("FATMA"));
    QVERIFY(!form.ONO->isEnabled());
    QVERIFY(form.KTUTAR->isEnabled() && form.CommandEKLE->isEnabled());
    QVERIFY(!form.CommandNODGS->isVisible());
}

void RecordFormTest::rights_decide_about_fee_and_plan_data() {
    QTest::addColumn<QString>("may_change");
    QTest::addColumn<int>("collections");
    QTest::addColumn<double>("fee");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("fee_enabled");
    QTest::addColumn<bool>("plan_enabled");
    QTest::addColumn<bool>("buttons_enabled");
    QTest::newRow("entitled") << "1" << 1 << 1000.0 << "1.000" << true << true << true;
    QTest::newRow("not entitled") << "0" << 1 << 1000.0 << "1.000" << false << false << false;
    QTest::newRow("no option at all") << "" << 1 << 1000.0 << "1.000" << false << false << false;
    QTest::newRow("no fee yet") << "0" << 1 << 0.0 << "" << true << true << true;
    QTest::newRow("without collections") << "1" << 0 << 1000.0 << "" << true << true << false;
}

void RecordFormTest::rights_decide_about_fee_and_plan() {
    QFETCH(QString, may_change);
    QFETCH(int, collections);
    QFETCH(double, fee);
    Row student = ayse;
    student.emplace_back("KTUTAR", fee);
    RecordDesk desk({student});
    RecordDesk::instalment(1250, "20261001", 1000);
    desk.session.mayChangeFees = may_change;
    desk.session.collectionsAllowed = collections;
    const KurvoYeni& form = desk.open("1250");
    QTEST(form.KTUTAR->text(), "shown");
    QTEST(form.KTUTAR->isEnabled(), "fee_enabled");
    QTEST(form.TABLO2->isEnabled(), "plan_enabled");
    for (const QPushButton* button : {form.CommandEKLE, form.CommandYARAT, form.CommandSENET})
        QTEST(button->isEnabled(), "buttons_enabled");
    QCOMPARE(form.TABLO2->rows(), collections);
}

void RecordFormTest::rights_decide_about_deletion_and_leaving_data() {
    QTest::addColumn<QString>("may_change");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("entitled") << "1" << true;
    QTest::newRow("not entitled") << "0" << false;
    QTest::newRow("no option at all") << "" << true;
}

void RecordFormTest::rights_decide_about_deletion_and_leaving() {
    QFETCH(QString, may_change);
    RecordDesk desk({ayse});
    desk.session.mayChangeFees = may_change;
    const KurvoYeni& form = desk.open("1250");
    for (const QWidget* control : std::initializer_list<QWidget*>{form.CommandSIL, form.AYYER, form.AYTAR})
        QTEST(control->isEnabled(), "enabled");
}

// The form stays empty, yet knows that the number has a row: a save there replaces it.
void RecordFormTest::hidden_student_is_out_of_reach() {
    RecordDesk desk({{{"ONO", 5}, {"ADSOY", "GİZLİ"}, {"SAKLA", 1}}});
    desk.session.hideArchived = "1";
    KurvoYeni& form = desk.open();
    QVERIFY(!form.SAKLA->isVisible());
    desk.enter_number("5");
    QCOMPARE(form.ADSOY->text(), QString());
    RecordDesk::fill(form.ADSOY, "BAŞKA");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(5, "ADSOY"), QString("BAŞKA"));
    form.close();

    desk.session.hideArchived = "0";
    const KurvoYeni& open = desk.open("5");
    QVERIFY(open.SAKLA->isVisible());
    QCOMPARE(open.ADSOY->text(), QString("BAŞKA"));
}

void RecordFormTest::next_number_data() {
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("next");
    QTest::newRow("nobody on file") << 0 << "1";
    QTest::newRow("gaps stay") << 4200 << "4201";
}

void RecordFormTest::next_number() {
    QFETCH(int, last);
    QFETCH(QString, next);
    RecordDesk desk(last == 0 ? std::vector<Row>{} : std::vector<Row>{{{"ONO", last}}, {{"ONO", 3}}});
    KurvoYeni& form = desk.open();
    RecordDesk::press(form.CommandSON);
    QCOMPARE(form.ONO->text(), next);
    QVERIFY(form.ONO->hasFocus() && form.ONO->isEnabled());
}

void RecordFormTest::cleared_form() {
    RecordDesk desk({ayse});
    desk.drives.put("c/okul/data/OzelKod.txt", "AAA\r\nBBB\r\n");
    RecordDesk::instalment(1250, "20261001", 1000);
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.TUTAR, "250");
    form.SAKLA->setChecked(true);
    form.AYRI->setChecked(true);
    RecordDesk::press(form.CommandTEMIZLE);
    for (const QLineEdit* box : {form.ONO, form.ADSOY, form.TEL, form.KTUTAR, form.TUTAR, form.OO[4]})
        QCOMPARE(box->objectName() + box->text(), box->objectName());
    QCOMPARE(form.SNF->currentText(), QString(" "));
    QCOMPARE(form.DIN->currentText(), QString("1. Sınıf"));
    QCOMPARE(form.OZKOD->currentText(), QString("AAA"));
    QCOMPARE(form.KAYTAR->key(), QString("20261124"));
    QCOMPARE(form.TABLO2->rows(), 0);
    for (const QLineEdit* total : {form.YBORC, form.YKALAN, form.EBORC, form.EGECIKEN})
        QCOMPARE(total->text(), QString("0"));
    QCOMPARE(form.USER->text(), QString("OYA"));
    QCOMPARE(form.TEL->toolTip(), QString());
    QVERIFY(form.SAKLA->isChecked() && !form.AYRI->isChecked());
    QVERIFY(form.KTUTAR->isEnabled() && form.ONO->hasFocus() && !form.CommandNODGS->isVisible());
}

void RecordFormTest::name_keys_data() {
    QTest::addColumn<QString>("capitals");
    QTest::addColumn<QString>("name");
    QTest::newRow("as typed") << "0" << "Işık Dalgıç oğuz";
    QTest::newRow("Turkish capitals") << "1" << "IŞIK DALGIÇ OĞUZ";
}

void RecordFormTest::name_keys() {
    QFETCH(QString, capitals);
    RecordDesk desk;
    desk.session.upperCaseNames = capitals;
    KurvoYeni& form = desk.open("1");
    RecordDesk::fill(form.ADSOY, "Işık \"Dal'gıç\" oğuz");
    QTEST(form.ADSOY->text(), "name");
    RecordDesk::fill(form.ADSOY, "iz");
    QCOMPARE(form.ADSOY->text(), capitals == "1" ? QString("İZ") : QString("iz"));
}

void RecordFormTest::lists_are_filled() {
    RecordDesk desk;
    desk.drives.put("c/okul/data/okullar.txt", "ZZ OKULU\r\nAA OKULU\r\n");
    for (const auto& [kind, code, amount, words] :
         {std::tuple("0", "MTS", 3, " "), std::tuple("1", "Sayısal", 9000, " "), std::tuple("2", "K", 15, "Kardeş"),
          std::tuple("2", "A", 7, "Öğretmen çocuğu")})
        RecordDesk::add(RecordDesk::reference_file, "Fiyat",
                        {{"TUR", kind}, {"KOD", code}, {"DEGER", amount}, {"TANIM", words}});
    const KurvoYeni& form = desk.open();
    QCOMPARE(entries(form.GELOKUL), QStringList({"ZZ OKULU", "AA OKULU"}));
    QCOMPARE(entries(form.OZKOD), QStringList());
    QCOMPARE(entries(form.OADET), QStringList({"1", "2", "3"}));
    QCOMPARE(entries(form.ISKONTO), QStringList({"7 Öğretmen çocuğu", "15 Kardeş"}));
    QCOMPARE(entries(form.SNF), QStringList({" ", "12A   Sayısal grubu", "12AB   Eşit ağırlık"}));
    QCOMPARE(entries(form.SBC), QStringList({"2025", "2026"}));
    QCOMPARE(entries(form.ODSEK),
             QStringList({"Senet", "Çek", "Nakit", "Kredi Kartı", "Şüpheli Alacak", "Takipte", "İptal"}));
    QCOMPARE(form.FDONEM->text(), QString("2026"));
    for (const QComboBox* free_text : {form.GELOKUL, form.OADET, form.ISKONTO})
        QCOMPARE(free_text->currentText(), QString());
    QVERIFY(form.CommandSERVISBUL->isEnabled());
}

void RecordFormTest::photo_of_the_folder_keeps_its_bare_name_data() {
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("kept");
    QTest::newRow("in the photo folder") << "c/okul/foto/ayşe.jpg" << "ayşe.jpg";
    QTest::newRow("in a folder of it") << "c/okul/foto/2026/ayşe.jpg" << "2026\\ayşe.jpg";
    QTest::newRow("elsewhere") << "d/kamera/ayşe.jpg" << "d:\\kamera\\ayşe.jpg";
    QTest::newRow("on a share") << "unc/sunucu/foto/1.jpg" << "\\\\sunucu\\foto\\1.jpg";
    QTest::newRow("none") << "" << "eski.bmp";
}

void RecordFormTest::photo_of_the_folder_keeps_its_bare_name() {
    QFETCH(QString, chosen);
    RecordDesk desk;
    KurvoYeni& form = desk.open("1");
    form.RESIM->setText("eski.bmp");
    QString asked_in;
    const file_choice::Override choice([&](const QString& folder) {
        asked_in = folder;
        return chosen.isEmpty() ? QString() : desk.drives.path(chosen);
    });
    RecordDesk::press(form.CommandONAME);
    QCOMPARE(asked_in, QString("c:\\okul\\foto\\"));
    QTEST(form.RESIM->text(), "kept");
}

// Whoever was removed on the record form leaves no card behind.
void RecordFormTest::closing_brings_the_card_up_to_date() {
    RecordDesk desk({ayse, {{"ONO", 1251}, {"ADSOY", "BARIŞ"}}});
    KurvoYeni& form = desk.open("1250");
    RecordDesk::press(form.CommandTEMIZLE);
    QVERIFY(!desk.session.studentSelected);
    {
        store::Database term = store::OpenDatabase(RecordDesk::term_file);
        store::Recordset students = term.OpenRecordset("Ogrenci");
        students.Index("ONOX");
        students.Seek("=", {1250});
        students.Delete();
    }
    form.close();
    QVERIFY(!desk.session.studentSelected);
    QCOMPARE(desk.session.shownStudent, 0);
    QCOMPARE(desk.kurvo.LONO->text(), QString());
    QCOMPARE(desk.kurvo.LADSOYAD->text(), QString());
}
