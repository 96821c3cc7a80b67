#include "table_copy.h"

#include "rows.h"
#include "support/school.h"

class TableCopyTest : public QObject {
    Q_OBJECT

private slots:
    void what_is_dumped_loads_as_the_same() {
        const School school;
        const QByteArray first = "MT,Matematik\r\n", second = "CG,\"Coğrafya, \"\"seçmeli\"\"\"\r\n",
                         third = "TR,\"\"\r\n", fourth = "FZ, \\par\r\n", fifth = "ZZ,\"iki\r\nsatır\"\r\n";
        const QByteArray head = "KOD,TANIM\r\n", expected = head + second + fourth + first + third + fifth;
        QCOMPARE(table_copy::load(rows::reference, "Ders", head + first + second + third + fourth + fifth, false), 5);
        QCOMPARE(rows::dump(rows::reference, "Ders"), expected);
        table_copy::load(rows::reference, "Ders", expected, true);
        QCOMPARE(rows::dump(rows::reference, "Ders"), expected);

        for (const QByteArray number : {"0", "-1", "0.1", "1234567.89", "-0.000001", "123456789012345683968",
                                        "0.30000000000000004", "9007199254740993"}) {
            const QByteArray text = "ONO,VADE,TUTAR\r\n1,20261001," + number + "\r\n";
            table_copy::load(rows::term, "Odeme", text, true);
            QCOMPARE(rows::all(rows::term, "Odeme").first()["TUTAR"].number(), number.toDouble());
            QVERIFY(rows::all(rows::term, "Odeme").first()["ODSEK"].is_null());
            // Nothing but the digits that are needed, where a double holds the number exactly.
            const QByteArray dumped = rows::dump(rows::term, "Odeme");
            if (number != "9007199254740993") QVERIFY2(dumped.contains("," + number + ","), dumped.constData());
            table_copy::load(rows::term, "Odeme", dumped, true);
            QCOMPARE(rows::dump(rows::term, "Odeme"), dumped);
        }
    }

    void refuses_whole_and_names_line_and_field() {
        School school;
        school.teacher(9, "ÖMER IŞIK");
        const QByteArray before = rows::dump(rows::reference, "Ogretmen");
        const std::pair<QByteArray, QStringList> texts[]{{"SICIL,ADI\n1,x\n", {"1. satır", "ADI"}},
                                                         {"SICIL,ADSOY,SICIL\n1,x,2\n", {"1. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n1,x\nbir,y\n", {"3. satır", "SICIL", "bir"}},
                                                         {"SICIL,ADSOY\n\"\",y\n", {"2. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n 7,y\n", {"2. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n1.5,y\n", {"2. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n2147483648,y\n", {"2. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n1,x\n2\n", {"3. satır", "ADSOY"}},
                                                         {"SICIL,ADSOY\n1,x,y\n", {"2. satır", "y"}},
                                                         {"SICIL,ADSOY\n1,\"x\ny\"\n5,z\n1,y\n", {"5. satır", "SICIL"}},
                                                         {"SICIL,ADSOY\n8,x\n9,y\n", {"3. satır", "SICIL"}}};
        for (const auto& [text, named] : texts) {
            const QString words = refusal([&] { table_copy::load(rows::reference, "Ogretmen", text, false); });
            for (const QString& name : named) QVERIFY2(words.contains(name), qPrintable(words));
            QCOMPARE(rows::dump(rows::reference, "Ogretmen"), before);
        }
        QVERIFY(!refusal([] { table_copy::load(rows::reference, "Ogretmen", "SICIL\n1\nx\n", true); }).isEmpty());
        QCOMPARE(rows::dump(rows::reference, "Ogretmen"), before);
        table_copy::load(rows::reference, "Ogretmen", "SICIL,ADSOY\n9,c\n", true);
        QCOMPARE(rows::dump(rows::reference, "Ogretmen"), QByteArray("SICIL,ADSOY\r\n9,c\r\n"));
    }
};

static const Registered<TableCopyTest> registered;
#include "table_copy_test.moc"
