#include "platform/paths.h"

#include "support/drives.h"
#include "support/run_all.h"

class PathsTest : public QObject {
    Q_OBJECT

private slots:
    void names_are_mapped() {
        const Drives drives;
        const std::pair<QString, QString> names[]{{"C:/okul\\data//Bilgi.mdb", "c/okul/data/Bilgi.mdb"},
                                                  {"d:qlm\\tak.txt", "d/qlm/tak.txt"},
                                                  {"\\\\Sunucu\\okul\\x.txt", "unc/Sunucu/okul/x.txt"},
                                                  {"//Sunucu/okul/x.txt", "unc/Sunucu/okul/x.txt"},
                                                  {"c:\\okul\\", "c/okul/"},
                                                  {"c:\\okul\\..\\..\\..\\x.txt", "c/x.txt"}};
        for (const auto& [name, below] : names) QCOMPARE(paths::native(name), drives.path(below));
        QCOMPARE(paths::native(drives.path("x\\y.txt")), drives.path("x/y.txt"));
    }

    void case_does_not_matter() {
        const std::pair<QString, QString> names[]{{"c:\\OKUL\\DATA\\BILGI.MDB", "c/okul/Data/bilgi.mdb"},
                                                  {"c:\\SINIF\\İZİN.txt", "c/sınıf/izin.txt"},
                                                  {"c:\\okul\\BİLGI.txt", "c/okul/bilgı.txt"}};
        for (const auto& [name, lies] : names) {
            const Drives drives;
            drives.put(lies, "x");
            QVERIFY(paths::exists(name));
            QCOMPARE(paths::native(name), drives.path(lies));
            QVERIFY(!paths::exists(name.left(name.lastIndexOf('\\'))));  // a folder is no file
        }
        const Drives drives;
        drives.put("c/okul/sınıf.txt", "x");
        QVERIFY(!paths::exists("c:\\okul\\sinif.txt"));  // two letters that are never one
    }

    void exact_spelling_wins() {
        const Drives drives;
        drives.put("c/okul/A.txt", "1");
        drives.put("c/okul/a.txt", "2");
        QCOMPARE(paths::native("c:\\okul\\a.txt"), drives.path("c/okul/a.txt"));
        QCOMPARE(paths::native("C:\\OKUL\\A.txt"), drives.path("c/okul/A.txt"));
        // What does not lie there yet goes into the folder that does.
        QCOMPARE(paths::native("c:\\OKUL\\Yeni\\x.txt"), drives.path("c/okul/Yeni/x.txt"));
    }

    void files_are_listed_and_removed() {
        const Drives drives;
        for (const char* name : {"2027ogr.mdb", "2025OGR.MDB", "2026ogr.mdb", "Bilgi.mdb", "ogr.mdb.txt"})
            drives.put(QString("c/okul/data/") + name, {});
        drives.put("c/okul/data/klasörogr.mdb/x", {});
        QCOMPARE(paths::files_in("c:\\okul\\data\\", "ogr.mdb"),
                 QStringList({"2025OGR.MDB", "2026ogr.mdb", "2027ogr.mdb"}));
        QCOMPARE(paths::files_in("c:\\yok", "ogr.mdb"), QStringList());
        QVERIFY(paths::remove("c:\\okul\\data\\BILGI.MDB"));
        QVERIFY(!QFile::exists(drives.path("c/okul/data/Bilgi.mdb")));
        QVERIFY(paths::remove("c:\\okul\\data\\BILGI.MDB"));
    }
};

static const Registered<PathsTest> registered;
#include "paths_test.moc"
