#include "web/remote_directory.h"

#include "forms/kurvo_yeni.h"
#include "platform/clock.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "register/program.h"
#include "support/mariadb_server.h"
#include "support/refusal.h"
#include "support/run_all.h"
#include "support/school.h"

#include <QElapsedTimer>
#include <QTcpServer>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

const QString password = "gizli-sifre";

// The program on a school whose student 1250 has never been published, with the directory `database` as its own.
struct Clerk {
    Clerk(const School& school, const QString& database, const QString& key = "ANK") {
        school.hand_over({.remote_key = key});
        program.start();
        session.remoteHost = loopback(1);
        session.remoteDatabase = database;
        session.remoteUser = "kurvo";
        session.remotePassword = password;
        fatal::set_handler([this](const std::exception& error) { failures << QString::fromUtf8(error.what()); });
    }
    ~Clerk() { fatal::set_handler({}); }

    KurvoYeni& open(const QString& number) {
        if (program.record_form() != nullptr) program.record_form()->close();
        program.form().LONO->setText(number);
        program.form().CommandYENI->click();
        return *program.record_form();
    }
    void save(const QString& telephone) {
        KurvoYeni& form = open("1250");
        form.TEL->setText(telephone);
        form.CommandKAYDET->click();
    }
    void remove(const QString& number = "1250") {
        prompts.expect("Kayıt Silinecek.");
        open(number).CommandSIL->click();
    }

    prompt::Script prompts;
    Program program;
    SessionContext& session = program.session();
    QStringList failures;
};

void enrol(School& school) {
    school.school_class("12A", "Sayısal grubu").student(1251).name("ALİ");
    school.student(1250).name("IŞIL D'ARK").set("SINIF", "12A").set("BOLUM", "2").set("DIN", 12).set("OZELKOD", "Ö1");
    school.student(1250).set("VELI", "ĞŞİÇÖÜ ğşıçöü").set("ANNE", "O’NEİL ā–😀").set("KAYTAR", "20260905");
}

}  // namespace

class RemoteDirectoryTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MariadbServer> server_;

    QStringList query(const QString& statement) const { return server_->administrator().query(statement); }
    // One table that knows transactions and one that does not, each with another school's student 1250.
    void make_tables() const {
        const QString columns =
            u"sq_id,sq_ono,sq_adsoyad,sq_alan,sq_grup,sq_snf,sq_ozelgrup,sq_veli,sq_anne,sq_baba,sq_gsm,"
            "sq_veligsm,sq_annegsm,sq_babagsm,sq_kay_tar,sq_kay_saat,sq_kay_gsm"_s;
        const QString definition = QString(columns).replace(',', " varchar(30),") + " varchar(30)";
        for (const QString& table : {u"utf8"_s, u"latin"_s}) {
            query("create or replace database " + table);
            query("create table " + table + ".ogrenci (" + definition + ", unique (sq_id, sq_ono)) " +
                  (table == "utf8" ? "engine=InnoDB charset=utf8mb4" : "engine=MyISAM charset=latin5"));
            query("insert into " + table + ".ogrenci (sq_id, sq_ono) values ('IZM', '1250')");
        }
    }

private slots:
    void initTestCase() {
        try {
            server_ = std::make_unique<MariadbServer>();
            query("create user kurvo@'%' identified by '" + password + "'");
            query("grant select, insert, update, delete on *.* to kurvo@'%'");
        } catch (const std::exception& error) {
            QFAIL(error.what());
        }
    }

    void init() { make_tables(); }
    void cleanupTestCase() { server_.reset(); }

    void life_of_a_row_data() {
        QTest::addColumn<QString>("database");
        QTest::addColumn<QString>("guardian");  // ĞŞİÇÖÜ ğşıçöü
        QTest::newRow("utf8") << "utf8"
                              << "C49EC59EC4B0C387C396C39C20C49FC59FC4B1C3A7C3B6C3BC";
        QTest::newRow("latin") << "latin"
                               << "D0DEDDC7D6DC20F0FEFDE7F6FC";
    }

    void life_of_a_row() {
        QFETCH(QString, database);
        QFETCH(QString, guardian);
        const QString all = "select * from " + database + ".ogrenci where sq_id = 'ANK'";
        QTime time(9, 5);
        const clock_source::Override clock([&] { return QDateTime(QDate(2026, 11, 24), time); });
        School school;
        enrol(school);
        Clerk clerk(school, database);
        clerk.save("0532 123 45 67");
        const QString row =
            "ANK|1250|IŞIL D'ARK|SAY|12A|MZ|Ö1|ĞŞİÇÖÜ ğşıçöü|O'NEİL a-?| |5321234567| | | |2026-09-05|09:05| ";
        QCOMPARE(query(all), QStringList(row));
        QCOMPARE(query("select hex(sq_veli) from " + database + ".ogrenci where sq_id = 'ANK'"), QStringList(guardian));

        time = QTime(17, 40);
        clerk.save("5321234567");  // as it was
        QCOMPARE(query(all), QStringList(row));
        clerk.save("5339876543");
        QCOMPARE(query(all), QStringList(QString(row).replace("5321234567", "5339876543").replace("09:05", "17:40")));
        clerk.remove("1251");  // who was never published
        clerk.remove();
        QCOMPARE(query("select sq_id, sq_ono from " + database + ".ogrenci"), QStringList("IZM|1250"));
        QCOMPARE(clerk.failures + clerk.prompts.failures(), QStringList());
    }

    void student_is_saved_before_anything_fails_data() {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<QString>("words");
        QTest::newRow("nobody listens") << "host"
                                        << "Sunucuya ulaşılamadı: " + loopback(3);
        QTest::newRow("wrong password") << "password"
                                        << "Sunucu kullanıcıyı ya da parolasını kabul etmedi";
        QTest::newRow("dropped table") << "table"
                                       << "Sunucuda tablo yok: " + loopback(1);
    }

    void student_is_saved_before_anything_fails() {
        QFETCH(QString, trouble);
        QFETCH(QString, words);
        School school;
        enrol(school);
        {
            Clerk clerk(school, "utf8");
            if (trouble == "host") clerk.session.remoteHost = loopback(3);
            if (trouble == "password") clerk.session.remotePassword = "yanlis-sifre";
            if (trouble == "table") query("drop table utf8.ogrenci");
            clerk.save("5321234567");
            clerk.remove("1251");
            QCOMPARE(clerk.failures.size(), 2);
            QVERIFY(clerk.failures[0].startsWith("1250 numaralı öğrenci kaydedildi, ancak"));
            QVERIFY(clerk.failures[1].startsWith("1251 numaralı öğrenci silindi, ancak"));
            for (const QString& failure : clerk.failures)
                QVERIFY2(
                    failure.contains("henüz yayımlanmadı") && failure.contains(words) && !failure.contains("sifre"),
                    qPrintable(failure));
        }
        QCOMPARE(school.rows("Ogrenci", {"ONO", "TEL"}), QStringList("1250|5321234567"));
        make_tables();
        Clerk(school, "utf8").save("5339876543");
        QCOMPARE(query("select sq_gsm from utf8.ogrenci where sq_id = 'ANK'"), QStringList("5339876543"));
    }

    void school_without_a_key_connects_to_nobody() {
        School school;
        enrol(school);
        Clerk clerk(school, "utf8", {});
        clerk.session.remoteHost = loopback(3);
        clerk.save("5321234567");
        clerk.remove();
        QCOMPARE(clerk.failures, QStringList());
    }

    void dead_server_does_not_hold_the_clerk_data() {
        QTest::addColumn<QString>("trouble");
        for (const char* trouble : {"silent", "locked", "killed"}) QTest::newRow(trouble) << trouble;
    }

    // The last one leaves no server behind.
    void dead_server_does_not_hold_the_clerk() {
        QFETCH(QString, trouble);
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress(loopback(2)), 3306));
        SessionContext session;
        session.remoteHost = loopback(trouble == "silent" ? 2 : 1);
        session.remoteDatabase = "utf8";
        session.remoteUser = "kurvo";
        session.remotePassword = password;
        session.remoteSchoolKey = "ANK";
        KurvoYeni form;
        form.ONO->setText("1250");
        const Administrator other = server_->administrator();
        other.query("lock tables utf8.ogrenci write");
        std::jthread killer;
        if (trouble == "killed")
            killer = std::jthread([&] {
                const Administrator watching = server_->administrator();
                const QString waiting =
                    "select 1 from information_schema.processlist where state like 'Waiting for %lock'";
                while (watching.query(waiting).isEmpty()) std::this_thread::yield();
                ::kill(static_cast<pid_t>(server_->pid()), SIGKILL);
            });
        using std::chrono_literals::operator""s;
        const mariadb::Limits limits = trouble == "killed" ? mariadb::Limits() : mariadb::Limits{1s, 1s, 1s};
        QElapsedTimer clock;
        clock.start();
        const QString words = refusal([&] { RemoteDirectory(session, limits).uzak_ogrenci_yaz(form); });
        QVERIFY2(words.contains("Sunucu süresinde yanıt vermedi ya da bağlantı koptu"), qPrintable(words));
        QVERIFY(clock.elapsed() < 4000);
    }
};

static const Registered<RemoteDirectoryTest> registered;
#include "remote_directory_test.moc"
