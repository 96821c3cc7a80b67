#include "launch.h"

#include "rows.h"
#include "school.h"
#include "support/drives.h"

class LaunchTest : public QObject {
    Q_OBJECT

private slots:
    void writes_the_eighteen_items_and_the_running_program() {
        const Drives drives;
        launch::HandOver values{"21.1",
                                rows::root,
                                "ÖZEL IŞIK, ÇAĞ DERSHANESİ",
                                "2026",
                                "0",
                                "110011",
                                "ŞULE",
                                "c:\\okul\\foto\\",
                                "10.0.0.5",
                                "dizin",
                                "okul",
                                "p,w",
                                "IZM01"};
        launch::prepare(values);
        // Ö = D6, I = 49, Ş = DE, Ç = C7, Ğ = D0, İ = DD in the code page.
        const QByteArray expected =
            "\"21.1\"\r\n\"\"\r\n\"c:\\okul\\\"\r\n\"\xd6ZEL I\xdeIK, \xc7\x41\xd0 "
            "DERSHANES\xdd\"\r\n\"\"\r\n\"2026\"\r\n"
            "\"\"\r\n\"0\"\r\n\"\"\r\n\"110011\"\r\n\"\xdeULE\"\r\n\"\"\r\n\"c:\\okul\\foto\\\"\r\n\"10.0.0.5\"\r\n"
            "\"dizin\"\r\n\"okul\"\r\n\"p,w\"\r\n\"IZM01\"\r\n";
        QCOMPARE(drives.bytes("c/qlm/log.txt"), expected);

        table_copy::load(school::programs_file, "prg", "KOD\nKasa\n", false);
        launch::prepare(values);
        QCOMPARE(rows::dump(school::programs_file, "prg"), QByteArray("KOD\r\nKasa\r\nKurvo\r\n"));

        for (const QString unfit : {"\"IŞIK\" DERSHANESİ", "IŞIK\nDERSHANESİ", "ЛИЦЕЙ"}) {
            values.school = unfit;
            QVERIFY(!refusal([&] { launch::prepare(values); }).isEmpty());
            QCOMPARE(drives.bytes("c/qlm/log.txt"), expected);
        }
    }
};

static const Registered<LaunchTest> registered;
#include "launch_test.moc"
