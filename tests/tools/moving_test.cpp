// A school goes to a real server and back.
#include "moving.h"

#include "audit.h"
#include "backup.h"
#include "platform/paths.h"
#include "rows.h"
#include "sample.h"
#include "school.h"
#include "store/engine.h"
#include "support/drives.h"
#include "support/mariadb_server.h"

#include <QProcess>

namespace {

const QStringList files{"Bilgi.mdb", "Dsys.mdb", "kbase.mdb", "2026ogr.mdb"};
const moving::Told nobody{[](auto&, auto&) {}, {}, [](auto&, auto&) {}};

QString data(const QString& name) {
    return school::data_file(rows::root, name);
}

struct SampleSchool {
    SampleSchool() {
        school::create(rows::root, {"2026"});
        sample::fill_reference(rows::root);
        sample::Scale scale;
        scale.students = 12;
        sample::fill_term(rows::root, "2026", 1, scale);
        // Two sessions of one hour, which the second index gives in the order of entry.
        table_copy::load(rows::term, "Etud", "ONO,TARIH,SAAT\r\n1009,20270101,0900\r\n1003,20270101,0900\r\n", false);
    }
    QStringList rows() const {
        QStringList all;
        for (const QString& file : files) {
            all << table_copy::overview(data(file));
            for (const store::TableDef& table : store::OpenDatabase(data(file)).tables())
                all << rows::dump(data(file), QString::fromStdString(table.name));
        }
        table_copy::dump(rows::term, "Etud", "TSX", [&](const QByteArray& piece) { all << piece; });
        return all;
    }
    const Drives drives;
};

void change_first(store::Recordset& classes) {
    classes.MoveFirst();
    classes.Edit();
    classes["KAPASITE"] = 9;
    classes.Update();
}

}  // namespace

class MovingTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        server_ = std::make_unique<MariadbServer>();
        const Administrator root = server_->administrator();
        root.query("create database kurvo");
        root.query("create user okul@'%' identified by 'gizli'");
        root.query("grant select,insert,update,delete,create,drop,alter,index on kurvo.* to okul@'%'");
        place_.hosts = QStringList(loopback(1));
        place_.database = "kurvo", place_.user = "okul", place_.password = "gizli";
    }

    void takes_every_row_along_and_leaves_no_old_file_to_write_to() {
        const SampleSchool school;
        const QStringList before = school.rows();
        const QByteArray bytes = school.drives.bytes("c/okul/data/2026ogr.mdb");
        auto old = store::OpenDatabase(rows::term);
        auto old_rows = old.OpenRecordset("Sinif");
        QCOMPARE(to_server(), 4);
        QCOMPARE(school.rows(), before);
        QCOMPARE(school.drives.bytes("c/okul/data/2026ogr.mdb.yerel"), bytes);
        QVERIFY(refusal([&] { change_first(old_rows); }).contains("yerinde değil"));
        QCOMPARE(to_server(), 0);

        auto left = store::OpenDatabase(rows::term);
        auto left_rows = left.OpenRecordset("Sinif");
        QCOMPARE(moving::to_files(rows::root, nobody), 4);
        QVERIFY(school.drives.bytes("c/okul/data/2026ogr.mdb").startsWith("SQLite"));
        QCOMPARE(school.rows(), before);
        QVERIFY(refusal([&] { change_first(left_rows); }).contains("yerinde değil"));
        QVERIFY(refusal([&] { to_server(); }).contains("önekle tablolar var (bilgi)"));
        QCOMPARE(moving::remove_left_tables(rows::root), 4);
        QCOMPARE(tables(), QStringList());
        QCOMPARE(to_server("merkez"), 4);
        const auto load = [](const char* text, bool empty_first) {
            return refusal([&] { table_copy::load(rows::term, "Sinif", text, empty_first); });
        };
        QCOMPARE(load("SINIF,ACK\r\nZA,a\r\nZB,b\r\n", true), QString());
        QVERIFY(load("SINIF,ACK\r\nZC,c\r\nZA,d\r\n", false).contains("3. satır, SINIF alanı: bu anahtarla"));
        QVERIFY(load("SINIF,ACK\r\nZC,c\r\nZC,d\r\n", true).contains("3. satır, SINIF alanı: bu anahtarla"));
        QCOMPARE(rows::dump(rows::term, "Sinif"), QByteArray("SINIF,ACK,KAPASITE\r\nZA,a,\r\nZB,b,\r\n"));
        QVERIFY(tables().contains("merkez_2026ogr_Odeme"));
    }

    void a_false_row_is_found() {
        const SampleSchool school;
        const auto root = server_->administrator();
        // A server that takes what comes in for Latin letters is told better.
        root.query("set global init_connect='set character_set_client=latin1'");
        QCOMPARE(to_server(), 4);
        const auto difference = [] {
            const QString aside = rows::term + ".yerel";
            return store::first_difference(*store::open_engine(aside, paths::native(aside)),
                                           *store::open_engine(rows::term, paths::native(rows::term)));
        };
        QCOMPARE(difference(), QString());
        // The tables are compared by their names.
        for (const auto& [change, words] :
             {std::pair("update 2026ogr_Odeme set TUTAR=TUTAR+1 limit 1", "TUTAR aynı değil"),
              {"update 2026ogr_Etud set TARIH__key=X'FF' where ONO=1009 order by row_id desc limit 1",
               "Etud: TSX dizininde"},
              {"delete from 2026ogr_Devam limit 1", "Devam: kayıt sayısı"}}) {
            root.query(QString(change).replace(" 2026ogr", " kurvo.2026ogr"));
            QVERIFY2(difference().contains(words), qPrintable(difference()));
        }
        const auto found = audit::look_over(rows::root);
        QVERIFY(found.size() == 1 && found[0].words.contains("Etud: 1 kaydın sıralama anahtarı"));
    }

    void is_refused_whole_while_somebody_writes() {
        const SampleSchool school;
        auto file = store::OpenDatabase(rows::term);
        auto students = file.OpenRecordset("Ogrenci");
        students.MoveFirst();
        students.Edit();
        QVERIFY(refusal([&] { to_server(); }).contains("kilitli"));
        QVERIFY(!store::server_place_of(rows::reference));
        QCOMPARE(tables(), QStringList());
    }

    void goes_on_where_it_was_killed() {
        const SampleSchool school;
        const QStringList before = school.rows();
        school.drives.put("c/okul/data/parola", "gizli\n");
        const QStringList to{"tasi",  "c:\\okul",    "--sunucu", loopback(1),        "--veritabani",
                             "kurvo", "--kullanici", "okul",     "--parola-dosyasi", "c:\\okul\\data\\parola"};
        for (const QStringList& words : {to, QStringList{"tasi", "c:\\okul", "--geri"}}) {
            for (const char* last : {"Kasa", "kbase.mdb (", "Ogrenci", "Etud "}) {
                QProcess tool;
                tool.start(KURVO_ARAC, words);
                QByteArray said;
                while (!said.contains(last) && tool.waitForReadyRead()) said += tool.readAll();
                tool.kill();
                tool.waitForFinished();
                QCOMPARE(school.rows(), before);  // every file opens, on the one side or the other
            }
            QProcess tool;
            tool.start(KURVO_ARAC, words);
            QVERIFY(tool.waitForFinished() && tool.exitCode() == 0);
            QCOMPARE(school.rows(), before);
            QVERIFY(store::server_place_of(rows::term).has_value() == (words == to));
        }
    }

    void is_backed_up_and_put_back_at_the_server() {
        const SampleSchool school;
        to_server();
        const QStringList before = school.rows();
        const QString copy = "d:\\yedek", root = rows::root;
        backup::take(root, copy);
        QVERIFY(paths::exists(copy + "\\data\\2026ogr.mdb") && !paths::exists(copy + "\\data\\2026ogr.mdb.yerel"));
        table_copy::load(rows::term, "Sinif", "SINIF\r\nZZ\r\n", true);
        backup::put_back(copy, root);
        QCOMPARE(school.rows(), before);
        server_->administrator().query("drop database kurvo");
        server_->administrator().query("create database kurvo");  // the server was set up anew
        backup::put_back(copy, root);
        QCOMPARE(school.rows(), before);
        QVERIFY(store::server_place_of(rows::term));

        server_.reset();
        const QByteArray text = school.drives.bytes("c/okul/data/2026ogr.mdb");
        for (const QString& words :
             {refusal([&] { backup::take(root, "d:\\salı"); }), refusal([&] { backup::put_back(copy, root); }),
              refusal([&] { moving::to_files(root, nobody); })})
            QVERIFY2(words.contains("ulaşılamıyor") && !words.contains("gizli"), qPrintable(words));
        QVERIFY(!QFile::exists(school.drives.path("d/salı")));
        QCOMPARE(school.drives.bytes("c/okul/data/2026ogr.mdb"), text);
    }

private:
    int to_server(const QString& front = {}) { return moving::to_server(rows::root, place_, front, false, nobody); }
    QStringList tables() { return server_->administrator().query("show tables from kurvo"); }

    std::unique_ptr<MariadbServer> server_;
    store::ServerPlace place_;
};

static const Registered<MovingTest> registered;
#include "moving_test.moc"
