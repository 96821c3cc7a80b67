// The same acts of the record store on a database server: beside the raw client of that server, and beside the file.
#include "benches.h"
#include "platform/paths.h"
#include "raw_store.h"
#include "store/engine_copy.h"
#include "store/mariadb_engine.h"
#include "support/mariadb_server.h"

#include <QFile>

#include <mysql.h>

#include <array>
#include <optional>
#include <stdexcept>

namespace bench {

namespace {

const QString file = QStringLiteral("c:\\okul\\data\\2027ogr.mdb");
constexpr auto prefix = "2027ogr";
constexpr int seeks = 500;
constexpr int walked_rows = 100'000;
constexpr int edits = 10;

// The term once more, on a server that brings every commit to the disk.
class ServedTerm {
public:
    ServedTerm()
        : server_(loopback(1),
                  {QStringLiteral("--innodb-buffer-pool-size=512M"), QStringLiteral("--innodb-log-file-size=256M"),
                   QStringLiteral("--innodb-flush-log-at-trx-commit=1")}) {
        const Administrator root = server_.administrator();
        root.query(QStringLiteral("CREATE DATABASE okul"));
        root.query(QStringLiteral("CREATE USER memur@'%' IDENTIFIED BY 'parola'"));
        root.query(QStringLiteral("GRANT ALL ON okul.* TO memur@'%'"));
        store::ServerPlace place;
        place.hosts = QStringList(loopback(1));
        place.database = QStringLiteral("okul");
        place.user = QStringLiteral("memur");
        place.password = QStringLiteral("parola");
        place.prefix = QString::fromLatin1(prefix);
        const auto from = store::open_engine(BigSchool::term_file, paths::native(BigSchool::term_file));
        store::MariadbEngine::create(file, place, from->tables());
        store::MariadbEngine to(file, place);
        store::copy_rows(*from, to);
        QFile text(paths::native(file));
        if (!text.open(QIODevice::WriteOnly) || text.write(store::server_place_text(place)) < 0)
            throw std::runtime_error("the place of the server cannot be written");
    }
    ~ServedTerm() { QFile::remove(paths::native(file)); }

private:
    MariadbServer server_;
};

// The client library alone.
class RawClient {
public:
    RawClient() : connection_(mysql_init(nullptr), mysql_close) {
        const unsigned protocol = MYSQL_PROTOCOL_TCP;
        mysql_options(connection_.get(), MYSQL_OPT_PROTOCOL, &protocol);
        mysql_options(connection_.get(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
        if (mysql_real_connect(connection_.get(), loopback(1).toUtf8(), "memur", "parola", "okul", 3306, nullptr,
                               CLIENT_MULTI_STATEMENTS) == nullptr)
            fail();
    }
    // One trip; copies every text.
    void run(const std::string& statements) {
        if (mysql_real_query(connection_.get(), statements.data(), statements.size()) != 0) fail();
        do {
            const std::unique_ptr<MYSQL_RES, void (*)(MYSQL_RES*)> rows(mysql_use_result(connection_.get()),
                                                                        mysql_free_result);
            while (const MYSQL_ROW row = rows ? mysql_fetch_row(rows.get()) : nullptr)
                for (unsigned column = 0; column < mysql_num_fields(rows.get()); ++column)
                    keep(std::string(row[column] != nullptr ? row[column] : ""));
        } while (mysql_next_result(connection_.get()) == 0);
        if (mysql_errno(connection_.get()) != 0) fail();
    }

private:
    [[noreturn]] void fail() const { throw std::runtime_error(mysql_error(connection_.get())); }
    std::unique_ptr<MYSQL, void (*)(MYSQL*)> connection_;
};

std::string table(const char* name) {
    return std::string("`") + prefix + '_' + name + '`';
}

// The acts, on whichever engine holds the file.
class Acts {
public:
    Acts(const QString& path, const std::vector<double>& numbers)
        : numbers_(numbers), term_(store::OpenDatabase(path)) {
        students_.Index("ONOX");
        instalments_.Index("OVX");
    }

    Seconds seek() {
        return timed([&] { seek_all(); }, seeks);
    }
    Seconds walk() {
        return timed([&] { walk_all(); });
    }
    Seconds edit() {
        return timed([&] { edit_all(); }, edits);
    }
    // What a card reads of one student.
    Seconds student() {
        return timed(
            [&] {
                for (int i = 0; i < edits; ++i)
                    for (store::Recordset& rows : of_student_)
                        store::scan_prefix(rows, {numbers_[static_cast<std::size_t>(i)]},
                                           [&] { keep(rows["ONO"].number()); });
            },
            edits);
    }

private:
    void seek_all() {
        for (int i = 0; i < seeks; ++i) {
            students_.Seek("=", {numbers_[static_cast<std::size_t>(i)]});
            for (const char* field : {"ADSOY", "SINIF", "TEL"}) keep(students_[field].text());
        }
    }
    void walk_all() {
        instalments_.MoveFirst();
        for (int i = 0; i < walked_rows; ++i, instalments_.MoveNext()) {
            keep(instalments_["VADE"].text());
            keep(instalments_["TUTAR"].number());
            keep(instalments_["ACK"].text());
        }
    }
    void edit_all() {
        students_.Seek("=", {numbers_.front()});
        for (int i = 0; i < edits; ++i) {
            students_.Edit();
            students_["TEL"] = QString::number(5'320'000'000 + i);
            students_.Update();
        }
    }

    const std::vector<double>& numbers_;
    store::Database term_;
    store::Recordset students_ = term_.OpenRecordset("Ogrenci");
    store::Recordset instalments_ = term_.OpenRecordset("Odeme");
    std::array<store::Recordset, 5> of_student_ = {term_.OpenRecordset("Odeme"), term_.OpenRecordset("Tahsilat"),
                                                   term_.OpenRecordset("Devam"), term_.OpenRecordset("Dmazeret"),
                                                   term_.OpenRecordset("Etud")};
};

void measure_beside_client(Table& rows, Acts& served, const std::vector<double>& numbers) {
    RawClient raw;
    const auto raw_seeks = [&] {
        for (int i = 0; i < seeks; ++i)
            raw.run("SELECT ADSOY,SINIF,TEL FROM " + table("Ogrenci") +
                    " WHERE ONO=" + std::to_string(static_cast<int>(numbers[static_cast<std::size_t>(i)])));
    };
    rows.compare(
        "server, Seek \"=\" and three fields", 1.5, [&] { return served.seek(); },
        [&] { return timed(raw_seeks, seeks); });
    const auto raw_walk = [&] {
        raw.run("SELECT VADE,TUTAR,ACK FROM " + table("Odeme") + " FORCE INDEX (OVX) ORDER BY ONO,VADE__key LIMIT " +
                std::to_string(walked_rows));
    };
    rows.compare(
        "server, walk of 100,000 rows, three fields", 2, [&] { return served.walk(); },
        [&] { return timed(raw_walk); });
    const auto raw_edit = [&] {
        const std::string where = " WHERE ONO=" + std::to_string(static_cast<int>(numbers.front()));
        for (int i = 0; i < edits; ++i) {
            raw.run("BEGIN;SELECT TEL FROM " + table("Ogrenci") + where + " FOR UPDATE");
            raw.run("UPDATE " + table("Ogrenci") + " SET TEL='" + std::to_string(5'330'000'000 + i) + "'" + where +
                    ";COMMIT");
        }
    };
    rows.compare(
        "server, Edit and Update", 2, [&] { return served.edit(); }, [&] { return timed(raw_edit, edits); });
}

}  // namespace

void measure_server(Table& rows, const BigSchool& school) {
    if (!rows.wants("server")) return;
    std::optional<ServedTerm> term;
    try {
        term.emplace();
    } catch (const std::runtime_error& failure) {
        return rows.leave_out("server", failure.what());
    }
    Acts served(file, school.numbers()), filed(BigSchool::term_file, school.numbers());
    measure_beside_client(rows, served, school.numbers());
    // A trip through the network layer beside a read of the page cache: what the server costs on one machine.
    rows.compare(
        "server beside file, Seek", 60, [&] { return served.seek(); }, [&] { return filed.seek(); });
    rows.compare(
        "server beside file, walk", 8, [&] { return served.walk(); }, [&] { return filed.walk(); });
    rows.compare(
        "server beside file, Edit and Update", 3, [&] { return served.edit(); }, [&] { return filed.edit(); });
    rows.compare(
        "server beside file, rows of a student", 20, [&] { return served.student(); }, [&] { return filed.student(); });
}

}  // namespace bench
