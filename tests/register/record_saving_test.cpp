#include "platform/date_picker.h"
#include "platform/rich_text.h"
#include "record_desk.h"
#include "record_tests.h"

#include <QTest>

namespace {

const Row ayse{{"ONO", 1250},      {"ADSOY", "AYŞE"}, {"KAYTAR", "20260905"},
               {"AYTAR", "20000101"}, {"BOLUM", "0"},   {"SAVBEL", "0"}};

// A row in which no two fields hold the same, longer than may be typed where a field may be.
Row every_field() {
    Row row;
    int place = 0;
    for (const store::FieldDef& field : store::table_of(store::FileKind::term, "Ogrenci").fields) {
        ++place;
        const QString name = QString::fromStdString(field.name);
        if (field.type == store::FieldType::memo)
            row.emplace_back(field.name, rich_text::from_plain(name + QStringLiteral(" ığş")));
        else if (field.type == store::FieldType::text)
            row.emplace_back(field.name, name + QStringLiteral(" değeri çok uzun bir metin ") + QString::number(place));
        else if (field.type == store::FieldType::number)
            row.emplace_back(field.name, place + 0.25);
        else
            row.emplace_back(field.name, 1);
    }
    for (const auto& [field, value] : Row{{"ONO", 77},
                                          {"SINIF", "12A"},
                                          {"GELOKUL", "BİR OKUL"},
                                          {"OZELKOD", "Ö1"},
                                          {"BOLUM", "3"},
                                          {"SAVBEL", "1"},
                                          {"SAKLA", 0},
                                          {"DTABLO", " "},
                                          {"KTUTAR", 5000},
                                          {"ISKONTO", 12.5},
                                          {"TEL", "5321234567"},
                                          {"VGSM", "5321234568"},
                                          {"AGSMTEL", "5321234569"},
                                          {"BGSMTEL", "5321234560"},
                                          {"KAYTAR", "20260901"},
                                          {"AYTAR", "20261231"},
                                          {"DOGTAR", "20080229"},
                                          {"VERTAR", "20200131"}})
        row.emplace_back(field, value);
    return row;
}

}  // namespace

// From nothing to a changed record, by keys and clicks alone.
void RecordSavingTest::life_of_a_student() {
    RecordDesk desk;
    desk.session.upperCaseNames = "1";
    KurvoYeni& form = desk.open();
    RecordDesk::press(form.CommandSON);
    QTest::keyClick(form.ONO, Qt::Key_Tab);
    RecordDesk::fill(form.ADSOY, "ışık gül");
    RecordDesk::choose(form.SNF, "12A   Sayısal grubu");
    RecordDesk::choose(form.BOLUM, "Sayısal");
    RecordDesk::fill(form.TEL, "0532 123 45 67");
    RecordDesk::fill(form.OO[4], "23.75");
    RecordDesk::fill(form.KTUTAR, "1000");
    form.DOGTAR->setFocus();
    form.DOGTAR->setSelectedSection(QDateTimeEdit::DaySection);
    Desk::type(form.DOGTAR, "29022008");
    desk.prompts.expect("Kayıt tutarı ile taksitler uyumsuz (-1000).  Yine de kaydedilsin mi?");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.failures(), QStringList());

    for (const auto& [field, value] :
         std::initializer_list<std::pair<const char*, QString>>{{"ADSOY", "IŞIK GÜL"},
                                                                {"SINIF", "12A"},
                                                                {"BOLUM", "2"},
                                                                {"TEL", "5321234567"},
                                                                {"ORT9", "23.75"},
                                                                {"KTUTAR", "1000"},
                                                                {"DOGTAR", "20080229"},
                                                                {"KAYTAR", "20261124"},
                                                                {"USER", "OYA"},
                                                                {"ANNE", " "}})
        QCOMPARE(field + RecordDesk::field(1, field), field + value);
    QCOMPARE(Desk::column(*desk.kurvo.TABLO, 2), QStringList("IŞIK GÜL"));
    QCOMPARE(desk.session.listRowCount, 1);
    QCOMPARE(desk.kurvo.LONO->text(), QString("1"));
    QCOMPARE(desk.kurvo.LADSOYAD->text(), QString("IŞIK GÜL"));
    QVERIFY(form.isVisible() && form.ONO->hasFocus());
    QCOMPARE(form.ONO->text() + form.ADSOY->text(), QString());

    desk.enter_number("1");
    QCOMPARE(form.DOGTAR->key(), QString("20080229"));
    RecordDesk::fill(form.TEL, "5339876543");
    desk.prompts.expect("(-1000)");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1, "TEL"), QString("5339876543"));
    QCOMPARE(desk.kurvo.LTEL->text(), QString(" 5339876543"));
    QCOMPARE(desk.kurvo.TABLO->rows(), 1);
    QCOMPARE(desk.prompts.failures(), QStringList());
}

void RecordSavingTest::unchanged_save_changes_nothing() {
    RecordDesk desk({every_field()});
    RecordDesk::instalment(77, "20261001", 4375);  // 5000 less 12.5 in a hundred
    desk.session.remoteSchoolKey = "ANAHTAR";
    const Fields before = RecordDesk::row(77);
    RecordDesk::press(desk.open("77").CommandKAYDET);
    QCOMPARE(desk.prompts.seen(), QStringList());
    const Fields after = RecordDesk::row(77);
    for (std::size_t i = 0; i < before.size(); ++i)
        QCOMPARE(QString::fromUtf8(after[i].first) + u' ' + after[i].second.text(),
                 QString::fromUtf8(before[i].first) + u' ' + before[i].second.text());
    QVERIFY(desk.published.empty());
}

void RecordSavingTest::new_row_is_filled() {
    RecordDesk desk;
    KurvoYeni& form = desk.open("9");
    RecordDesk::press(form.CommandKAYDET);
    for (const auto& [field, value] : RecordDesk::row(9)) {
        QVERIFY2(!value.is_null(), qPrintable(QString::fromUtf8(field)));
        QVERIFY2(!value.is_text() || !value.text().isEmpty(), qPrintable(QString::fromUtf8(field)));
    }
    QCOMPARE(RecordDesk::field(9, "NOT2"), QString(" "));
    QCOMPARE(RecordDesk::field(9, "BOLUM"), QString("0"));
    QCOMPARE(RecordDesk::field(9, "AYTAR"), QString("20000101"));
}

void RecordSavingTest::number_is_asked_for() {
    RecordDesk desk;
    KurvoYeni& form = desk.open();
    RecordDesk::fill(form.ADSOY, "ADSIZ");
    desk.prompts.expect("Öğrenci No Giriniz.");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.seen(), QStringList("Dikkat|Öğrenci No Giriniz."));
    QVERIFY(form.ONO->isEnabled() && form.ONO->hasFocus());
    QCOMPARE(desk.kurvo.TABLO->rows(), 0);
}

void RecordSavingTest::fee_against_instalments_data() {
    QTest::addColumn<QString>("fee");
    QTest::addColumn<QString>("discount");
    QTest::addColumn<QList<double>>("instalments");
    QTest::addColumn<QString>("difference");  // empty: nothing is asked
    QTest::newRow("no fee and no plan") << "" << "" << QList<double>{} << "";
    QTest::newRow("the discount fits") << "1000" << "15" << QList<double>{850} << "";
    QTest::newRow("an entry of the list") << "1000" << "15 Kardeş 20" << QList<double>{850} << "";
    QTest::newRow("849.15 counts as 849") << "999" << "15" << QList<double>{850} << "1";
    QTest::newRow("worked out exactly") << "1000" << "90" << QList<double>{100} << "";
    QTest::newRow("a fraction of a hundred") << "1000" << "12.5" << QList<double>{875} << "";
    QTest::newRow("less than the fee") << "1.000" << "" << QList<double>{600, 150} << "-250";
    QTest::newRow("instalments alone") << "" << "" << QList<double>{40} << "40";
    // 333.5 and 332.5 round up to 334 and 333 before they are added, 999.5 to 1000.
    QTest::newRow("each amount is rounded first") << "999,5" << "" << QList<double>{333.5, 332.5, 333} << "";
}

void RecordSavingTest::fee_against_instalments() {
    QFETCH(QString, fee);
    QFETCH(QString, discount);
    QFETCH(QList<double>, instalments);
    QFETCH(QString, difference);
    RecordDesk desk({ayse});
    for (int i = 0; i < instalments.size(); ++i)
        RecordDesk::instalment(1250, QString::number(20261001 + i), instalments[i]);
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.KTUTAR, fee);
    RecordDesk::fill(form.ISKONTO->lineEdit(), discount);
    RecordDesk::fill(form.ANNE, "FATMA");
    const QString question = "Kayıt tutarı ile taksitler uyumsuz (" + difference + ").  Yine de kaydedilsin mi?";
    if (!difference.isEmpty()) desk.prompts.expect(question, false);
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.seen(), difference.isEmpty() ? QStringList() : QStringList("Dikkat|" + question));
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(RecordDesk::field(1250, "ANNE"), difference.isEmpty() ? QString("FATMA") : QString(" "));
}

void RecordSavingTest::telephones_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");  // empty: refused
    QTest::newRow("with blanks") << "0532 123 45 67" << "5321234567";
    QTest::newRow("without blanks") << "05321234567" << "5321234567";
    QTest::newRow("points and commas") << "532.123,45.67" << "5321234567";
    QTest::newRow("a leading blank hides the 0") << " 05321234567" << "";
    QTest::newRow("one 0 alone is taken away") << "0053212345" << "";
    QTest::newRow("two are one too many") << "005321234567" << "";
    QTest::newRow("a lone 0") << "0" << "";
    QTest::newRow("letters pass") << "EVİ BÜYÜK 123" << "";
    QTest::newRow("ten letters pass") << "ABCDEFGHIJ" << "ABCDEFGHIJ";
    QTest::newRow("blanks alone") << "   " << " ";
    QTest::newRow("nothing") << "" << " ";
}

void RecordSavingTest::telephones() {
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    RecordDesk desk({ayse});
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.TEL, "0 533 111 22 33");
    RecordDesk::fill(form.BGSMTEL, typed);
    RecordDesk::fill(form.VGSM, "0 544 111 22 33");
    if (stored.isEmpty()) desk.prompts.expect("Hatalı telefon girmeyiniz.");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(RecordDesk::field(1250, "BGSMTEL"), stored.isEmpty() ? QString(" ") : stored);
    if (!stored.isEmpty()) return;
    // Boxes before the wrong one keep what was made of them.
    QCOMPARE(form.TEL->text(), QString("5331112233"));
    QCOMPARE(form.BGSMTEL->text(), typed);
    QCOMPARE(form.VGSM->text(), QString("0 544 111 22 33"));
}

void RecordSavingTest::wrong_telephone_after_a_refused_difference() {
    RecordDesk desk({ayse});
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.KTUTAR, "500");
    RecordDesk::fill(form.TEL, "0532 123 45 67");
    RecordDesk::fill(form.VGSM, "123");
    desk.prompts.expect("(-500)", false).expect("Hatalı telefon");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(desk.prompts.seen().last(), QString("Kurvo|Hatalı telefon girmeyiniz."));
    QCOMPARE(form.TEL->text(), QString("5321234567"));
    QCOMPARE(form.KTUTAR->text(), QString("500"));
}

void RecordSavingTest::learned_lists() {
    RecordDesk desk;
    desk.drives.put("c/okul/data/okullar.txt", "B OKULU\r\nA OKULU\r\n");
    KurvoYeni& form = desk.open("1");
    // Turkish letters stand behind the Latin ones; 45 characters are cut to 40.
    const QString school = "ÇOK UZUN BİR OKUL ADI 3456789012345678901XXXXX";
    RecordDesk::fill(form.GELOKUL->lineEdit(), school);
    RecordDesk::fill(form.OZKOD->lineEdit(), " k1234");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1, "GELOKUL"), QString("ÇOK UZUN BİR OKUL ADI 345678901234567890"));
    QCOMPARE(RecordDesk::field(1, "OZELKOD"), QString("k12"));
    QCOMPARE(desk.drives.bytes("c/okul/data/okullar.txt"),
             QByteArray("A OKULU\r\nB OKULU\r\n\xC7OK UZUN B\xDDR OKUL ADI 345678901234567890\r\n"));
    QCOMPARE(desk.drives.bytes("c/okul/data/OzelKod.txt"), QByteArray("k12\r\n"));

    // What is known already, and nothing at all, leave the file alone.
    desk.enter_number("2");
    RecordDesk::fill(form.GELOKUL->lineEdit(), "  A OKULU ");
    RecordDesk::fill(form.OZKOD->lineEdit(), "");
    desk.drives.put("c/okul/data/okullar.txt", "B OKULU\r\n");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(2, "GELOKUL") + RecordDesk::field(2, "OZELKOD"), QString("A OKULU "));
    QCOMPARE(desk.drives.bytes("c/okul/data/okullar.txt"), QByteArray("B OKULU\r\n"));
}

void RecordSavingTest::departure_data() {
    QTest::addColumn<bool>("still_owed");
    QTest::addColumn<QString>("forms");  // of the open, the paid and the half paid instalment
    QTest::newRow("debts stay") << true << "2 2 2";
    QTest::newRow("debts are cancelled") << false << "6 2 6";
}

void RecordSavingTest::departure() {
    QFETCH(bool, still_owed);
    RecordDesk desk({ayse});
    RecordDesk::instalment(1249, "20261001", 100);
    RecordDesk::instalment(1250, "20261001", 100);
    RecordDesk::instalment(1250, "20261101", 100, 100);
    RecordDesk::instalment(1250, "20261201", 100, 30);
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.AYYER, "TAŞINDI");
    desk.prompts.expect("(300)").expect(
        "Kalan borçlar geçerli ise TAMAM, iptal edilecekse İPTAL tuşuna basınız.", still_owed);
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(RecordDesk::field(1250, "AYYER"), QString("TAŞINDI"));
    QStringList forms;
    store::Recordset instalments = desk.session.termDb.OpenRecordset("Odeme");
    instalments.Index("OVX");
    store::scan_all(instalments, [&] { forms << instalments["ODSEK"].text(); });
    QCOMPARE(forms.takeFirst(), QString("2"));  // the neighbour's
    QTEST(forms.join(u' '), "forms");
}

// Only a student who had not left when the row was loaded can leave.
void RecordSavingTest::departure_is_asked_about_once() {
    Row left = ayse;
    left.emplace_back("AYYER", "MEZUN");
    RecordDesk desk({left});
    KurvoYeni& form = desk.open("1250");
    RecordDesk::press(form.CommandKAYDET);
    // What was loaded last is remembered on the cleared form too.
    desk.enter_number("3");
    RecordDesk::fill(form.AYYER, "GİTTİ");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.prompts.seen(), QStringList());
    form.close();

    KurvoYeni& fresh = desk.open();
    desk.enter_number("4");
    RecordDesk::fill(fresh.AYYER, "GİTTİ");
    desk.prompts.expect("Kalan borçlar");
    RecordDesk::press(fresh.CommandKAYDET);
    QCOMPARE(desk.prompts.failures(), QStringList());
}

void RecordSavingTest::row_of_the_number_is_saved_wherever_the_cursor_was_led() {
    RecordDesk desk({ayse, {{"ONO", 1251}, {"ADSOY", "BARIŞ"}}});
    KurvoYeni& form = desk.open("1250");
    desk.session.studentTable.Seek("=", {1251});
    RecordDesk::fill(form.ANNE, "FATMA");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1250, "ANNE"), QString("FATMA"));
    QCOMPARE(RecordDesk::field(1251, "ADSOY"), QString("BARIŞ"));
}

void RecordSavingTest::fee_without_the_right_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("fee");
    QTest::newRow("an existing student keeps it") << 1250 << "1500";
    QTest::newRow("a new one has none") << 1 << "0";
}

void RecordSavingTest::fee_without_the_right() {
    QFETCH(int, number);
    Row student = ayse;
    student.emplace_back("KTUTAR", 1500);
    RecordDesk desk({student});
    desk.session.collectionsAllowed = 0;
    KurvoYeni& form = desk.open(QString::number(number));
    QCOMPARE(form.KTUTAR->text(), QString());
    RecordDesk::press(form.CommandKAYDET);
    QTEST(RecordDesk::field(number, "KTUTAR"), "fee");
}

void RecordSavingTest::publishing_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("times");
    QTest::newRow("no key") << "" << "VELI" << "HASAN" << 0;
    QTest::newRow("a published value") << "ANAHTAR" << "VELI" << "HASAN" << 1;
    QTest::newRow("another one") << "ANAHTAR" << "BGSMTEL" << "5321234567" << 1;
    QTest::newRow("the last one") << "ANAHTAR" << "ADSOY" << "AYŞE NUR" << 1;
    QTest::newRow("one that is not published") << "ANAHTAR" << "BISTEL" << "2121234567" << 0;
    QTest::newRow("blanks around") << "ANAHTAR" << "ADSOY" << "  AYŞE " << 0;
}

void RecordSavingTest::publishing() {
    QFETCH(QString, key);
    QFETCH(QString, box);
    QFETCH(QString, value);
    QFETCH(int, times);
    RecordDesk desk({ayse});
    desk.session.remoteSchoolKey = key;
    KurvoYeni& form = desk.open("1250");
    RecordDesk::fill(form.findChild<QLineEdit*>(box), value);
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(desk.published, std::vector<std::int64_t>(static_cast<std::size_t>(times), 1250));
}

void RecordSavingTest::list_keeps_the_chosen_order() {
    RecordDesk desk({{{"ONO", 1}, {"ADSOY", "VELİ"}}, {{"ONO", 2}, {"ADSOY", "ALİ"}}});
    desk.list.liste_sirala(2);
    KurvoYeni& form = desk.open();
    desk.enter_number("3");
    RecordDesk::fill(form.ADSOY, "ÇINAR");
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(Desk::column(*desk.kurvo.TABLO, 2), QStringList({"ALİ", "ÇINAR", "VELİ"}));
    QCOMPARE(desk.session.listSortColumn, 2);
}
