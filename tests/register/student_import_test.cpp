#include "register/student_import.h"

#include "desk.h"
#include "platform/file_choice.h"
#include "platform/paths.h"
#include "support/test_engine.h"

#include <QListWidget>
#include <QProgressBar>

#include <sqlite3.h>

namespace {

const QString file = "c:\\okul\\liste.csv";

// The desk with the panel open, a file chosen, and the columns in the order of their boxes.
struct ImportDesk : Desk {
    explicit ImportDesk(const QByteArray& bytes) : Desk({{{"ONO", 5}, {"ADSOY", "ESKİ"}}}) {
        drives.put("c/okul/liste.csv", bytes);
        kurvo.CommandDOSYADAN->show();
        kurvo.ListA->addItem("önceki");
        press(kurvo.CommandDOSYADAN);
        kurvo.ONAME->setText(file);
        for (std::size_t box = 0; box < kurvo.bas.size(); ++box) kurvo.bas[box]->setText(QString::number(box + 1));
    }

    QStringList import_and_tell() {
        press(kurvo.CommandAKTAR);
        QStringList lines;
        for (int row = 0; row < kurvo.ListA->count(); ++row) lines << kurvo.ListA->item(row)->text();
        return lines;
    }

    StudentImport import{kurvo, session, list};
};

// Whoever adds this student from now on fails.
void let_fail(const ImportDesk& desk, int number, const QByteArray& how) {
    sqlite3* raw = nullptr;
    QCOMPARE(sqlite3_open(paths::native(desk.school.term_file()).toUtf8().constData(), &raw), SQLITE_OK);
    const QByteArray trigger =
        "CREATE TRIGGER full BEFORE INSERT ON Ogrenci WHEN NEW.ONO = " + QByteArray::number(number) +
        " BEGIN SELECT RAISE(" + how + ", 'disk full'); END";
    QCOMPARE(sqlite3_exec(raw, trigger.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(raw);
}

}  // namespace

class StudentImportTest : public QObject {
    Q_OBJECT

private slots:
    void rows_become_students_one_after_the_other() {
        ImportDesk desk(
            "ibi\xFE;\xFE\x65n;10;12A;day\xFD;Lise;Erkek;not;0532 123 45 67;0.532,1\n"
            ";\xD6z;11;9A;;;K\xFDz\n"
            "ali;;12;15; ; ;erkek;;05321234567890123\n"
            "can;er;10;77\n"
            "can;er;5;77\n"
            "abcdefghijklmnopqrstuvwxyzabcd;;13;1;;;;;0\n"
            "ece;su;14;B;;;E;;00532;0\n"
            "son;;;9A\n"
            "geç;;15;9A\n");
        QVERIFY(desk.kurvo.Frame_Dosyadan->isVisible() && desk.kurvo.ListA->count() == 0);
        desk.click_heading(2);
        QCOMPARE(desk.import_and_tell(),
                 QStringList({"2. satırda ad soyad yok", "4. satırda mükerrer numara", "5. satırda mükerrer numara",
                              "Okunan kayıt sayısı : 8", "Yazılan kayıt sayısı : 4"}));
        // A class of one begins the list of grades, 15 is beyond it, and a letter is none. A sex that is not told, or
        // in small letters, is that of the row before, be it a refused one.
        QCOMPARE(desk.school.rows("Ogrenci", {"ONO", "ADSOY", "SINIF", "DIN", "CINSIYET", "TEL", "VGSM", "ACK",
                                              "GELOKUL", "REFERANS"}),
                 QStringList({"5|ESKİ| |0|0| | | | | ", "10|IBIŞ ŞEN|12A|11|1|5321234567|.532,1|not|Lise|dayı",
                              "12|ALI|15|0|2| | | | | ", "13|ABCDEFGHIJKLMNOPQRSTUVWXY|1|0|2| | | | | ",
                              "14|ECE SU|B|-1|1|0532| | | | "}));
        QCOMPARE(desk.school.rows("Sinif", {"SINIF", "ACK", "KAPASITE"}),
                 QStringList({"1| |0", "12A|Sayısal grubu|0", "12AB|Eşit ağırlık|0", "15| |0", "B| |0"}));
        QCOMPARE(desk.listed(2), QStringList({"ABCDEFGHIJKLMNOPQRSTUVWXY", "ALI", "ECE SU", "ESKİ", "IBIŞ ŞEN"}));
        QVERIFY(desk.kurvo.import_progress->isHidden() && desk.kurvo.ASayrac->text() == " ");
        QVERIFY(!desk.drives.bytes("c/okul/data/okullar.txt").contains("Lise"));
    }

    void new_row_has_every_field() {
        ImportDesk desk("1;Ay\xFE\x65;-;Nur");
        const QStringList columns{"2", "4", "1", "", "", "0"};
        for (std::size_t box = 0; box < desk.kurvo.bas.size(); ++box)
            desk.kurvo.bas[box]->setText(columns.value(static_cast<qsizetype>(box)));
        desk.kurvo.ASayrac->setText("-");
        QCOMPARE(desk.import_and_tell().last(), "Yazılan kayıt sayısı : 1");
        School::Texts row = desk.school.row("Ogrenci", {1});
        for (const char* rich : {"RESIM", "VMAIL"}) {
            QVERIFY(row[rich].startsWith("{\\rtf"));
            QCOMPARE(rich_text::plain(row.take(rich)), "");
        }
        QCOMPARE(row.take("ONO") + row.take("ADSOY") + row.take("USER"), "1AYŞE-NUROYA");
        for (const char* date : {"KAYTAR", "AYTAR", "DOGTAR", "VERTAR"}) QCOMPARE(row.take(date), "20261124");
        for (const char* coded : {"BOLUM", "SAVBEL"}) QCOMPARE(row.take(coded), "0");
        for (const store::FieldDef& field : store::table_of(store::FileKind::term, "Ogrenci").fields) {
            const bool is_text = field.type == store::FieldType::text || field.type == store::FieldType::memo;
            const QString name = QString::fromStdString(field.name);
            if (row.contains(name)) QCOMPARE(row.take(name), is_text ? " " : "0");
        }
        QVERIFY(row.isEmpty());
    }

    void what_cannot_be_imported() {
        ImportDesk desk("Ad;Soyad;No\nali;;7\n");
        desk.kurvo.bas[2]->setText("0");
        QCOMPARE(desk.import_and_tell(), QStringList());
        desk.kurvo.bas[2]->setText("3");
        desk.kurvo.ONAME->setText("c:\\okul\\yok.csv");
        QCOMPARE(desk.import_and_tell(), QStringList());
        desk.drives.put("c/okul/kesik.xlsx", "PK\x03\x04 kesik");
        const file_choice::Override choice([&](const QString& folder) {
            return folder.isEmpty() ? desk.drives.path("c/okul/kesik.xlsx") : "a folder is told";
        });
        Desk::press(desk.kurvo.CommandONAME);
        QCOMPARE(desk.import_and_tell(), QStringList("c:\\okul\\kesik.xlsx: Dosya bozuk ya da eksik."));
        desk.kurvo.ONAME->setText(file);
        QCOMPARE(desk.import_and_tell().mid(1),
                 QStringList({"Okunan kayıt sayısı : 1", "Yazılan kayıt sayısı : 0"}));  // a heading ends the rows
        QCOMPARE(desk.school.rows("Ogrenci", {"ONO"}), QStringList("5"));
    }

    // Where only the row fails, those before it stay; where the whole file does, they are lost and not counted.
    void failure_in_the_middle_leaves_what_the_counters_tell() {
        if (test_engine::is_server()) QSKIP("a failing row is made with the means of a file");
        for (const auto& [how, kept] :
             {std::pair{"ABORT", QStringList({"1", "2", "5"})}, {"ROLLBACK", QStringList("5")}}) {
            ImportDesk desk("a;;1;9A\nb;;2;9A\nc;;3;9A\nd;;4;9A\n");
            let_fail(desk, 3, how);
            const QStringList told = desk.import_and_tell();
            QCOMPARE(told.size(), 3);
            QVERIFY2(told[0].contains("Ogrenci"), qPrintable(told[0]));
            QCOMPARE(told[1] + told[2],
                     "Okunan kayıt sayısı : 3Yazılan kayıt sayısı : " + QString::number(kept.size() - 1));
            QCOMPARE(desk.school.rows("Ogrenci", {"ONO"}), kept);
            QCOMPARE(desk.listed(), kept);
        }
    }
};

static const Registered<StudentImportTest> registered;
#include "student_import_test.moc"
