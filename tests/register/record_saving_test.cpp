#include "desk.h"
#include "platform/date_picker.h"
#include "platform/rich_text.h"

namespace {

const Row ayse{{"ONO", 1250},         {"ADSOY", "AYŞE"}, {"KAYTAR", "20260905"},
               {"AYTAR", "20000101"}, {"BOLUM", "0"},    {"SAVBEL", "0"}};

// A row in which no two fields hold the same, longer than may be typed where a field may be.
Row every_field() {
    Row row;
    int place = 0;
    for (const store::FieldDef& field : store::table_of(store::FileKind::term, "Ogrenci").fields) {
        ++place;
        const QString name = QString::fromStdString(field.name);
        if (field.type == store::FieldType::memo)
            row.emplace_back(field.name, rich_text::from_plain(name + " ığş"));
        else if (field.type == store::FieldType::text)
            row.emplace_back(field.name, name + " değeri çok uzun bir metin " + QString::number(place));
        else if (field.type == store::FieldType::number)
            row.emplace_back(field.name, place + 0.25);
        else
            row.emplace_back(field.name, 1);
    }
    int telephone = 0;
    for (const char* field : {"TEL", "VGSM", "AGSMTEL", "BGSMTEL"})
        row.emplace_back(field, QString::number(5321234567 + ++telephone));
    for (const char* field : {"KAYTAR", "AYTAR", "DOGTAR", "VERTAR"})
        row.emplace_back(field, QString::number(20260901 + ++telephone));
    row.insert(row.end(), {{"ONO", 77}, {"SINIF", "12A"}, {"OZELKOD", "Ö1"}, {"BOLUM", "3"}, {"SAVBEL", "1"}});
    row.insert(row.end(), {{"GELOKUL", "OKUL"}, {"SAKLA", 0}, {"DTABLO", " "}, {"KTUTAR", 5000}, {"ISKONTO", 12.5}});
    return row;
}

}  // namespace

class RecordSavingTest : public QObject {
    Q_OBJECT

private slots:
    // From nothing to a changed record, by keys and clicks alone.
    void life_of_a_student() {
        Desk desk({{{"ONO", 3}, {"ADSOY", "ALİ"}}, {{"ONO", 4}, {"ADSOY", "VELİ"}}});
        desk.list.liste_sirala(2);
        desk.session.upperCaseNames = "1";
        KurvoYeni& form = desk.open();
        desk.prompts.expect("Öğrenci No Giriniz.");
        Desk::press(form.CommandKAYDET);
        QVERIFY(form.ONO->isEnabled() && form.ONO->hasFocus());
        Desk::press(form.CommandSON);
        QTest::keyClick(form.ONO, Qt::Key_Tab);
        Desk::fill(form.ADSOY, "ışık \"gü'l\"");
        Desk::choose(form.SNF, "12A   Sayısal grubu");
        Desk::choose(form.BOLUM, "Sayısal");
        Desk::fill(form.TEL, "0532 123 45 67");
        Desk::fill(form.OO[4], "23.75");
        Desk::fill(form.KTUTAR, "1000");
        form.DOGTAR->setFocus();
        form.DOGTAR->setSelectedSection(QDateTimeEdit::DaySection);
        Desk::type(form.DOGTAR, "29022008");
        desk.prompts.expect("Kayıt tutarı ile taksitler uyumsuz (-1000).  Yine de kaydedilsin mi?");
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.school
                     .rows("Ogrenci", {"ADSOY", "SINIF", "BOLUM", "TEL", "ORT9", "KTUTAR", "DOGTAR", "KAYTAR", "USER"})
                     .last(),
                 QString("IŞIK GÜL|12A|2|5321234567|23.75|1000|20080229|20261124|OYA"));
        for (const QString& value : desk.school.row("Ogrenci", {5})) QVERIFY(!value.isEmpty());
        QCOMPARE(desk.listed(2), (QStringList{"ALİ", "IŞIK GÜL", "VELİ"}));
        QCOMPARE(desk.kurvo.LONO->text() + desk.kurvo.LADSOYAD->text(), QString("5IŞIK GÜL"));
        QVERIFY(form.isVisible() && form.ONO->hasFocus());
        QCOMPARE(form.ONO->text() + form.ADSOY->text(), QString());

        desk.enter_number("5");
        QCOMPARE(form.DOGTAR->key(), QString("20080229"));
        Desk::fill(form.TEL, "5339876543");
        desk.session.studentTable.Seek("=", {3});  // where another panel had led it
        desk.prompts.expect("(-1000)");
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(5, "TEL"), QString("5339876543"));
        QCOMPARE(desk.kurvo.LTEL->text(), QString(" 5339876543"));
        QCOMPARE(desk.prompts.failures(), QStringList());
    }

    void unchanged_save_changes_nothing() {
        Desk desk({every_field()});
        desk.instalment(77, "20261001", 4375);  // 5000 less 12.5 in a hundred
        desk.session.remoteSchoolKey = "ANAHTAR";
        const School::Texts before = desk.school.row("Ogrenci", {77});
        Desk::press(desk.open("77").CommandKAYDET);
        QCOMPARE(desk.prompts.seen(), QStringList());
        const School::Texts after = desk.school.row("Ogrenci", {77});
        for (const QString& field : before.keys()) QCOMPARE(field + after[field], field + before[field]);
        QVERIFY(desk.published.empty());
        desk.enter_number("77");
        Desk::fill(desk.form().VELI, "HASAN");
        Desk::press(desk.form().CommandKAYDET);
        QCOMPARE(desk.published, std::vector<std::int64_t>{77});
    }

    void fee_against_instalments_data() {
        QTest::addColumn<QString>("fee");
        QTest::addColumn<QList<double>>("instalments");
        QTest::addColumn<QString>("discount");
        QTest::addColumn<int>("difference");  // 0: nothing is asked
        QTest::newRow("an entry of the list") << "1000" << QList<double>{850} << "15 Kardeş 20" << 0;
        QTest::newRow("849.15 counts as 849") << "999" << QList<double>{850} << "15" << 1;
        QTest::newRow("worked out exactly") << "1000" << QList<double>{100} << "90" << 0;
        QTest::newRow("a fraction of a hundred") << "1000" << QList<double>{875} << "12.5" << 0;
        QTest::newRow("less than the fee") << "1.000" << QList<double>{600, 150} << "" << -250;
        QTest::newRow("instalments alone") << "" << QList<double>{40} << "" << 40;
        // 333.5 and 332.5 round up to 334 and 333 before they are added, 999.5 to 1000.
        QTest::newRow("each amount is rounded first") << "999,5" << QList<double>{333.5, 332.5, 333} << "" << 0;
    }

    void fee_against_instalments() {
        QFETCH(QString, fee);
        QFETCH(QString, discount);
        QFETCH(QList<double>, instalments);
        QFETCH(int, difference);
        Desk desk({ayse});
        for (int i = 0; i < instalments.size(); ++i)
            desk.instalment(1250, QString::number(20261001 + i), instalments[i]);
        KurvoYeni& form = desk.open("1250");
        Desk::fill(form.KTUTAR, fee);
        Desk::fill(form.ISKONTO->lineEdit(), discount);
        Desk::fill(form.ANNE, "FATMA");
        const QString question =
            QString("Kayıt tutarı ile taksitler uyumsuz (%1).  Yine de kaydedilsin mi?").arg(difference);
        if (difference != 0) desk.prompts.expect(question, false);
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.prompts.seen(), difference == 0 ? QStringList() : QStringList("Dikkat|" + question));
        QCOMPARE(desk.field(1250, "ANNE"), difference == 0 ? QString("FATMA") : QString(" "));
    }

    void telephones_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");  // empty: refused
        const std::pair<const char*, const char*> rows[]{{"0532 123 45 67", "5321234567"},
                                                         {"532.123,45.67", "5321234567"},
                                                         {" 05321234567", ""},
                                                         {"0053212345", ""},
                                                         {"0", ""},
                                                         {"EVİ BÜYÜK 123", ""},
                                                         {"ABCDEFGHIJ", "ABCDEFGHIJ"},
                                                         {"   ", " "}};
        for (const auto& [typed, stored] : rows) QTest::newRow(typed) << QString(typed) << QString(stored);
    }

    void telephones() {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        Desk desk({ayse});
        KurvoYeni& form = desk.open("1250");
        Desk::fill(form.TEL, "0 533 111 22 33");
        Desk::fill(form.BGSMTEL, typed);
        if (stored.isEmpty()) desk.prompts.expect("Hatalı telefon girmeyiniz.");
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(desk.field(1250, "BGSMTEL"), stored.isEmpty() ? QString(" ") : stored);
        if (!stored.isEmpty()) return;
        // Boxes before the wrong one keep what was made of them.
        QCOMPARE(form.TEL->text(), QString("5331112233"));
        QCOMPARE(form.BGSMTEL->text(), typed);
    }

    void learned_lists() {
        Desk desk;
        desk.drives.put("c/okul/data/okullar.txt", "B OKULU\r\nA OKULU\r\n");
        KurvoYeni& form = desk.open("1");
        // Turkish letters stand behind the Latin ones; 45 characters are cut to 40.
        Desk::fill(form.GELOKUL->lineEdit(), "ÇOK UZUN BİR OKUL ADI 3456789012345678901XXXXX");
        Desk::fill(form.OZKOD->lineEdit(), " k1234");
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(1, "GELOKUL") + desk.field(1, "OZELKOD"),
                 QString("ÇOK UZUN BİR OKUL ADI 345678901234567890k12"));
        QCOMPARE(desk.drives.bytes("c/okul/data/okullar.txt"),
                 QByteArray("A OKULU\r\nB OKULU\r\n\xC7OK UZUN B\xDDR OKUL ADI 345678901234567890\r\n"));
        QCOMPARE(desk.drives.bytes("c/okul/data/OzelKod.txt"), QByteArray("k12\r\n"));
    }

    void departure() {
        const Row left{{"ONO", 1251}, {"ADSOY", "ALİ"}, {"AYYER", "MEZUN"}};
        Desk desk({ayse, left});
        desk.instalment(1249, "20261001", 100);
        desk.instalment(1250, "20261001", 100);
        desk.instalment(1250, "20261101", 100, 100);
        desk.instalment(1250, "20261201", 100, 30);
        KurvoYeni& form = desk.open("1250");
        Desk::fill(form.AYYER, "TAŞINDI");
        desk.prompts.expect("(300)").expect("Kalan borçlar geçerli ise TAMAM, iptal edilecekse İPTAL tuşuna basınız.",
                                            false);
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(1250, "AYYER"), QString("TAŞINDI"));
        // The neighbour's, the open, the paid and the half paid one.
        QCOMPARE(desk.school.rows("Odeme", {"ODSEK"}).join(u' '), QString("2 6 2 6"));
        desk.enter_number("1251");  // who had left before is not asked about
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.prompts.failures(), QStringList());
    }
};

static const Registered<RecordSavingTest> registered;
#include "record_saving_test.moc"
