#include "audit.h"

#include "platform/paths.h"
#include "rows.h"
#include "support/school.h"

namespace {

const QString term = "2026ogr.mdb, ";

// A sound school: a student with a paid instalment, an absence and a session.
struct Office {
    Office() {
        school.lesson("MT", "Matematik").teacher(5, "ÖMER IŞIK");
        school.student(1250).name("AYŞE").instalment("20261001", 1000).payment("20261001", "20261005", "101500", 400);
        school.student(1250).absence("20261002", "MT", 1, 0, 0).session("20261002", "0900", "1000", "MT", 5);
    }
    // Changes the one row of a table.
    void change(std::string_view table, std::string_view field, const store::Value& value) const {
        auto database = store::OpenDatabase(school.term_file());
        auto row = database.OpenRecordset(table);
        row.Edit();
        row[field] = value;
        row.Update();
    }
    // A file of users made elsewhere, with two users whose codes differ in case only.
    void users_made_elsewhere() const {
        paths::remove(users);
        auto database = store::CreateDatabase(users);
        store::TableDef table = store::catalogue(store::FileKind::users).front();
        table.indexes.front().unique = false;
        database.CreateTable(table);
        auto rows = database.OpenRecordset("users");
        for (const char* code : {"OYA", "oya"}) rows.AddNew(), rows["KOD"] = code, rows["DKOD"] = "1011", rows.Update();
    }
    void damage(const QString& below, qsizetype from) const {
        QByteArray bytes = school.drives.bytes(below);
        school.drives.put(below, bytes.replace(from, 3000, QByteArray(3000, 'x')));
    }
    QStringList found() const {
        QStringList lines;
        for (const audit::Finding& one : audit::look_over(school.data_root()))
            lines << (one.fault ? "HATA " : "UYARI ") + one.place + ": " + one.words;
        return lines;
    }

    School school;
    const QString users = school.data_file("kbase.mdb");
};

struct Case {
    const char* name;
    std::function<void(Office&)> spoil;
    QString found;
};

}  // namespace

class AuditTest : public QObject {
    Q_OBJECT

private slots:
    void finds_the_row_that_is_wrong_and_no_other() {
        const Case cases[]{
            {"sound", [](Office&) {}, ""},
            {"paid", [](Office& o) { o.change("Odeme", "ODENEN", 300); },
             "HATA " + term + "Odeme, ONO 1250, VADE 20261001: ödenen 300, tahsilatların toplamı 400"},
            {"orphan", [](Office& o) { o.change("Devam", "ONO", 77); },
             "HATA " + term + "Devam, ONO 77, TARIH 20261002, DKOD MT: böyle bir öğrenci yok"},
            {"empty", [](Office& o) { o.change("Ogrenci", "BABA", ""); },
             "HATA " + term + "Ogrenci, ONO 1250: BABA boş metin; değeri olmayan alanda bir boşluk durur"},
            {"nameless", [](Office& o) { o.change("Ogrenci", "ADSOY", {}); },
             "HATA " + term + "Ogrenci, ONO 1250: ADSOY yok; öğrenci kartta gösterilemez"},
            {"date", [](Office& o) { o.change("Ogrenci", "DOGTAR", "20100229"); },
             "HATA " + term + "Ogrenci, ONO 1250: DOGTAR bir tarih değil: \"20100229\""},
            {"cut RTF", [](Office& o) { o.change("Ogrenci", "NOT", "{\\rtf1 {a\\}}"); },
             "HATA " + term + "Ogrenci, ONO 1250: NOT okunamayan zengin metin; yarıda kesilmiş"},
            {"counters", [](Office& o) { o.change("Devam", "IZINLI", 0); },
             "HATA " + term + "Devam, ONO 1250, TARIH 20261002, DKOD MT: üç sayaç da sıfır"},
            {"duplicates", [](Office& o) { o.users_made_elsewhere(); },
             "HATA kbase.mdb, users, KOD oya: aynı anahtarla birden çok kayıt"},
            {"no file", [](Office& o) { paths::remove(o.users); },
             "HATA kbase.mdb: Dosya bulunamadı: c:\\okul\\data\\kbase.mdb"},
            {"instalment gone",
             [](Office& o) { o.change("Odeme", "ODENEN", 0), o.change("Odeme", "VADE", "20261002"); },
             "UYARI " + term +
                 "Tahsilat, ONO 1250, VADE 20261001, TARIH 20261005, SAAT 101500: tahsilatın taksiti yok"},
            {"cash gone", [](Office& o) { o.change("Tahsilat", "KSAAT", "101501"); },
             "UYARI Bilgi.mdb, Kasa, TARIH 20261005, SAAT 101500: kasaya giren 400, tahsilatların toplamı 0: 1250  "
             "AYŞE #2026\nUYARI " +
                 term +
                 "Tahsilat, ONO 1250, VADE 20261001, TARIH 20261005, SAAT 101500: tahsilatın kasa kaydı yok: KSAAT "
                 "101501"},
            {"student gone",
             [](Office& o) {
                 o.school.add("Kasa", {{"TARIH", "20261006"}, {"SAAT", "1"}, {"ACK", "9  CAN #2026"}, {"KOD", "1"}});
             },
             "HATA Bilgi.mdb, Kasa, TARIH 20261006, SAAT 1: SAAT bir saat değil: \"1\"\n"
             "UYARI Bilgi.mdb, Kasa, TARIH 20261006, SAAT 1: kasa kaydının öğrencisi yok: 9  CAN #2026"},
            {"lesson", [](Office& o) { o.change("Devam", "DKOD", "XX"); },
             "UYARI " + term + "Devam, ONO 1250, TARIH 20261002, DKOD XX: ders kodunun kaydı yok: XX"},
            {"teacher", [](Office& o) { o.change("Etud", "SICIL", 6); },
             "UYARI " + term + "Etud, ONO 1250, TARIH 20261002, SAAT 0900: öğretmen numarasının kaydı yok: 6"},
            {"list", [](Office& o) { o.change("Ogrenci", "DIN", 14); },
             "UYARI " + term + "Ogrenci, ONO 1250: DIN listesinin dışında: 14"}};
        for (const Case& one : cases) {
            Office office;
            one.spoil(office);
            QVERIFY2(office.found().join('\n') == one.found, qPrintable(one.name + (": " + office.found().join('\n'))));
        }
    }

    void damaged_files_are_told_and_the_others_looked_at() {
        Office office;
        office.change("Ogrenci", "BABA", "");
        office.damage("c/okul/data/kbase.mdb", 0);
        office.school.add_term("2025");
        office.damage("c/okul/data/2025ogr.mdb", 4096);
        const QString found = office.found().join('\n');
        for (const char* part : {"HATA kbase.mdb: Dosya bir veritabanı", "HATA 2025ogr.mdb: ", "BABA boş metin"})
            QVERIFY2(found.contains(part), qPrintable(found));
    }
};

static const Registered<AuditTest> registered;
#include "audit_test.moc"
