#include "platform/paths.h"

#include "base_tests.h"
#include "support/drives.h"

#include <QTest>

void PathsTest::names_are_mapped_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("below_drives");
    QTest::newRow("drive") << "c:\\okul\\data\\Bilgi.mdb"
                           << "c/okul/data/Bilgi.mdb";
    QTest::newRow("capital drive, both slashes") << "C:/okul\\data//Bilgi.mdb"
                                                 << "c/okul/data/Bilgi.mdb";
    QTest::newRow("no slash behind the drive") << "d:qlm\\tak.txt"
                                               << "d/qlm/tak.txt";
    QTest::newRow("share") << "\\\\Sunucu\\okul\\x.txt"
                           << "unc/Sunucu/okul/x.txt";
    QTest::newRow("share in slashes") << "//Sunucu/okul/x.txt"
                                      << "unc/Sunucu/okul/x.txt";
    QTest::newRow("folder keeps its end") << "c:\\okul\\"
                                          << "c/okul/";
    QTest::newRow("no way out of the drive") << "c:\\okul\\..\\..\\..\\x.txt"
                                             << "c/x.txt";
}

void PathsTest::names_are_mapped() {
    const Drives drives;
    QFETCH(QString, name);
    QFETCH(QString, below_drives);
    QCOMPARE(paths::native(name), drives.path(below_drives));
    QCOMPARE(paths::native(drives.path("x\\y.txt")), drives.path("x/y.txt"));
}

void PathsTest::case_does_not_matter_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("lies");
    QTest::newRow("plain rule") << "c:\\OKUL\\DATA\\BILGI.MDB"
                                << "c/okul/Data/bilgi.mdb";
    QTest::newRow("Turkish rule") << "c:\\SINIF\\İZİN.txt"
                                  << "c/sınıf/izin.txt";
    QTest::newRow("both rules in one name") << "c:\\okul\\BİLGI.txt"
                                            << "c/okul/bilgı.txt";
    QTest::newRow("two letters that are never one") << "c:\\okul\\sinif.txt"
                                                    << "c/okul/sınıf.txt";
}

void PathsTest::case_does_not_matter() {
    const Drives drives;
    QFETCH(QString, name);
    QFETCH(QString, lies);
    drives.put(lies, "x");
    const bool never = lies.endsWith("sınıf.txt");
    QCOMPARE(paths::exists(name), !never);
    if (!never) QCOMPARE(paths::native(name), drives.path(lies));
    QVERIFY(!paths::exists(name.left(name.lastIndexOf('\\'))));  // a folder is no file
}

void PathsTest::exact_spelling_wins() {
    const Drives drives;
    drives.put("c/okul/A.txt", "1");
    drives.put("c/okul/a.txt", "2");
    QCOMPARE(paths::native("c:\\okul\\a.txt"), drives.path("c/okul/a.txt"));
    QCOMPARE(paths::native("C:\\OKUL\\A.txt"), drives.path("c/okul/A.txt"));
    // What does not lie there yet goes into the folder that does.
    QCOMPARE(paths::native("c:\\OKUL\\Yeni\\x.txt"), drives.path("c/okul/Yeni/x.txt"));
}

void PathsTest::files_of_a_folder() {
    const Drives drives;
    for (const char* name : {"2027ogr.mdb", "2025OGR.MDB", "2026ogr.mdb", "Bilgi.mdb", "ogr.mdb.txt"})
        drives.put(QString("c/okul/data/") + name, {});
    drives.put("c/okul/data/klasörogr.mdb/x", {});
    QCOMPARE(paths::files_in("c:\\okul\\data\\", "ogr.mdb"),
             QStringList({"2025OGR.MDB", "2026ogr.mdb", "2027ogr.mdb"}));
    QCOMPARE(paths::files_in("c:\\yok", "ogr.mdb"), QStringList());
}

void PathsTest::remove_tells_what_is_left() {
    const Drives drives;
    drives.put("c/qlm/log.txt", "x");
    QVERIFY(paths::remove("c:\\qlm\\LOG.TXT"));
    QVERIFY(!QFile::exists(drives.path("c/qlm/log.txt")));
    QVERIFY(paths::remove("c:\\qlm\\LOG.TXT"));
}
