#include "line.h"
#include "store/office.h"
#include "support/run_all.h"

#include <functional>

namespace {

// Instalments of 100 on the first of each month, at a desk whose line may break.
struct FarDesk : OnServer, Office {
    FarDesk() {
        store::WriteScope scope(database);
        for (int month = 1; month <= 9; ++month) add_instalment(rows, 7, 20260001 + 100 * month, 100);
        scope.commit();
    }
    QStringList amounts() const {
        auto beside = store::OpenDatabase(file);
        auto odeme = beside.OpenRecordset("Odeme");
        return walk(odeme, "TUTAR");
    }

    Line line{{file}};
    store::Database database = store::OpenDatabase(file);
    store::Recordset rows = database.OpenRecordset("Odeme");
};

const QString not_written = "değişiklik yazılmadı", not_known = "yazılıp yazılmadığı bilinmiyor";

void raise_first(FarDesk& desk) {
    desk.rows.MoveFirst();
    set(desk.rows, "TUTAR", 4242);
}
void add_last(FarDesk& desk) {
    add_instalment(desk.rows, 7, 20261001, 4242);
}
void raise_first_and_add_last(FarDesk& desk) {
    store::WriteScope scope(desk.database);
    raise_first(desk);
    add_last(desk);
    scope.commit();
}

struct Break {
    const char* name;
    void (*write)(FarDesk&);
    QByteArray word;
    SlowProxy::Fate fate;
    QString told;      // nothing where the write goes through
    QString expected;  // first and last amount, count
};

}  // namespace

class LostConnectionTest : public QObject {
    Q_OBJECT

private slots:
    void reading_goes_on() {
        FarDesk desk;
        desk.rows.MoveFirst();
        QStringList seen{desk.rows["TUTAR"].text()};
        for (desk.rows.MoveNext(); !desk.rows.Eof(); desk.rows.MoveNext()) {
            desk.line.cut();
            desk.rows.Seek("=", {7, desk.rows["VADE"].value()});
            seen << desk.rows["TUTAR"].text();
        }
        QCOMPARE(seen, QStringList(9, "100"));
        desk.line.cut();
        QCOMPARE(desk.rows.RecordCount(), 9);
    }

    // Whatever breaks: a write is there once, or it is told that it is not there.
    void write_is_there_once_or_told_as_lost() {
        using Fate = SlowProxy::Fate;
        const QString as_before = "100 100 9";
        const Break breaks[]{
            {"update, unsent", raise_first, "COMMIT", Fate::cut, {}, "4242 100 9"},
            {"update, unanswered", raise_first, "COMMIT", Fate::lose_answer, {}, "4242 100 9"},
            {"insert, unsent", add_last, "COMMIT", Fate::cut, {}, "100 4242 10"},
            {"insert, unanswered", add_last, "COMMIT", Fate::lose_answer, {}, "100 4242 10"},
            {"lock, unanswered", raise_first, "FOR UPDATE", Fate::lose_answer, {}, "4242 100 9"},
            {"scope, first write", raise_first_and_add_last, "UPDATE `", Fate::cut, not_written, as_before},
            {"scope, second write", raise_first_and_add_last, "INSERT", Fate::lose_answer, not_written, as_before},
            {"scope, unsent", raise_first_and_add_last, "COMMIT", Fate::cut, not_written, as_before},
            {"scope, unanswered", raise_first_and_add_last, "COMMIT", Fate::lose_answer, {}, "4242 4242 10"}};
        for (const Break& at : breaks) {
            FarDesk desk;
            desk.rows.MoveFirst();
            desk.line.trap(at.word, at.fate);
            const QString told = refusal([&] { at.write(desk); });
            QVERIFY2(desk.line.is_trapped(), at.name);
            QVERIFY2(at.told.isEmpty() ? told.isEmpty() : told.contains(at.told), qPrintable(at.name + told));
            const QStringList found = desk.amounts();
            QCOMPARE(at.name + QString(" %1 %2 %3").arg(found.first(), found.last()).arg(found.size()),
                     at.name + QString(' ') + at.expected);
            raise_first(desk);  // nobody holds the file any more
        }
    }

    void row_that_another_wrote_meanwhile_is_not_written_over() {
        for (const bool is_same_row : {false, true}) {
            FarDesk desk;
            desk.rows.MoveFirst();
            desk.rows.Edit();
            desk.line.cut();
            auto other = store::OpenDatabase(desk.file);
            auto odeme = other.OpenRecordset("Odeme");
            if (!is_same_row) odeme.MoveLast();
            set(odeme, "TUTAR", 7);
            desk.rows["TUTAR"] = 4242;
            const auto code = code_of([&] { desk.rows.Update(); });
            QVERIFY(is_same_row ? code == store::Errc::locked : code == std::error_code());
            QCOMPARE(desk.amounts().first(), is_same_row ? "7" : "4242");
            raise_first(desk);
            QCOMPARE(desk.amounts().first(), "4242");
        }
    }

    void wrong_place_is_told_without_the_password() {
        const OnServer on_server;
        const std::pair<QByteArrayList, QString> places[]{
            {{"parola=", "parola=x"}, "kullanıcıyı ya da parolayı kabul etmiyor"},
            {{"veritabani=okul", "veritabani=yok"}, "veritabanı yok"},
            {{"veritabani=okul", "veritabani=mysql"}, "izin yok"},
            {{loopback(1).toLatin1(), loopback(3).toLatin1()}, "ulaşılamıyor"},
            {{"onek=f", "onek=g"}, "tablosu yok"},
            {{"onek=f", "onek=F"}, "satır"}};
        for (const auto& [change, words] : places) {
            Office office;
            test_engine::administrator().query("grant all on yok.* to ogrenciisleri");
            test_engine::change_place(office.file, change[0], change[1]);
            const QString told = refusal([&] { store::OpenDatabase(office.file); });
            QVERIFY2(told.contains(words) && told.contains(office.file) && !told.contains("sifre"), qPrintable(told));
        }
    }

    void stopped_server_is_told() {
        FarDesk desk;
        desk.rows.MoveFirst();
        test_engine::kill_server();
        const std::pair<std::function<void()>, QString> acts[]{
            {[&] { desk.rows.RecordCount(); }, "Veritabanı sunucusuna ulaşılamıyor"},
            {[&] { add_last(desk); }, not_known}};  // each waits for it to come back
        for (const auto& [act, words] : acts) {
            const QString told = refusal(act);
            QVERIFY2(told.contains(words) && told.contains(desk.file) && !told.contains("sifre"), qPrintable(told));
        }
    }
};

static const Registered<LostConnectionTest> registered;
#include "lost_connection_test.moc"
