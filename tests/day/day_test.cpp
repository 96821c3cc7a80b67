// A day of two workstations on one school, each a process of its own with the real window. What it leaves in every
// table is compared with expected/FILE.TABLE.csv; a table without such a file must be as the school had it.
#include "audit.h"
#include "day_school.h"
#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/text_file.h"
#include "school.h"
#include "store/record.h"
#include "support/drives.h"
#include "support/run_all.h"
#include "support/test_engine.h"

#include <QProcess>

namespace {

const QString told(DAY_DATA);

using day_school::File;
using day_school::Record;

QList<Record> stored(const File& file, const store::TableDef& table) {
    QList<Record> records;
    store::Database database = store::OpenDatabase(file.path());
    store::Recordset rows = database.OpenRecordset(table.name);
    store::scan_all(rows, [&] {
        Record& record = records.emplaceBack();
        for (const store::FieldDef& field : table.fields) {
            const store::Value& value = rows[field.name].value();
            QString text = value.is_null() ? "Null" : value.text();
            if (text.startsWith("{\\rtf")) text = "RTF:" + rich_text::plain(text);
            record[QString::fromStdString(field.name)] = text;
        }
    });
    return records;
}

// A time that was drawn from the clock cannot be told beforehand. The hour names the desk; a cash row is the n-th of
// its hour, "10#2", and its payments name it so; a payment's own time is the hour alone.
class DrawnTimes {
public:
    DrawnTimes() {
        QMap<QString, int> of_hour;
        for (const Record& cash :
             stored(day_school::files().front(), store::table_of(store::FileKind::reference, "Kasa"))) {
            const QString hour = cash["SAAT"].left(2);
            names_[cash["TARIH"] + cash["SAAT"]] = hour + '#' + QString::number(++of_hour[hour]);
        }
    }
    void put_in(Record& record, std::string_view table) const {
        if (table == "Kasa") name(record, "SAAT");
        if (table != "Tahsilat") return;
        name(record, "KSAAT");
        record["SAAT"].truncate(2);
    }

private:
    void name(Record& record, const QString& field) const {
        record[field] = names_.value(record["TARIH"] + record[field], record[field]);
    }
    QMap<QString, QString> names_;
};

// One line a record, with the fields that hold something.
QStringList lines(const QList<Record>& records, const store::TableDef& table) {
    QStringList result;
    for (const Record& record : records) {
        QString& line = result.emplaceBack();
        for (const store::FieldDef& field : table.fields) {
            const QString name = QString::fromStdString(field.name);
            if (record[name] != day_school::nothing_in(field)) line += name + "=" + record[name] + "|";
        }
    }
    return result;
}

// One of the two processes.
class Desk {
public:
    Desk(const QString& number, const QString& folder) : drives(folder) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(KURVO_GUN, {number, drives});
    }
    ~Desk() { process_.kill(), process_.waitForFinished(); }

    // Its next word; none when it has ended.
    QByteArray hear() {
        while (!process_.canReadLine() && process_.waitForReadyRead(60000)) continue;
        return process_.readLine().trimmed();
    }
    void go_on() { process_.write("on\n"), process_.waitForBytesWritten(); }
    int end() {
        process_.waitForFinished();
        return process_.state() == QProcess::NotRunning ? process_.exitCode() : -1;
    }

    // "Makbuz_1001_20261005-104003_1.pdf" without its time.
    QStringList papers() const {
        QStringList names = QDir(drives + "/kagit").entryList({"*.pdf"});
        for (QString& name : names) name = name.section('_', 0, -3);
        names.sort();
        return names;
    }

    const QString drives;

private:
    QProcess process_;
};

}  // namespace

class DayTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        day_school::make(told + "/school");
        const QString data = school::data_file(day_school::root, {});
        for (const QString& name : paths::files_in(data, ".mdb")) test_engine::take_over(data + name);
        // Both see the school on the network's drive; what is local to a workstation each has for itself.
        const QString second_drives = drives_.path("masa-2");
        QVERIFY(QDir().mkpath(second_drives) && QFile::link(drives_.path("p"), second_drives + "/p"));
        Desk first("1", drives_.path("")), second("2", second_drives);
        for (;;) {
            const QByteArray of_first = first.hear(), of_second = second.hear();
            if (of_first.isEmpty() && of_second.isEmpty()) break;
            QCOMPARE(of_first + " " + of_second, "waiting waiting");
            first.go_on();
            second.go_on();
        }
        QCOMPARE(first.end(), 0);
        QCOMPARE(second.end(), 0);
        for (const Desk* desk : {&first, &second}) {
            store::Database launcher = store::OpenDatabase(desk->drives + "/c/qlm/Psys.mdb");
            QVERIFY(!launcher.OpenRecordset("prg").has_rows());  // signed off
            QVERIFY(!QFile::exists(desk->drives + "/c/qlm/siletud.mdb"));
        }
        QCOMPARE(first.papers(), day_school::told_lines(told + "/expected/kagitlar-1.txt"));
        QCOMPARE(second.papers(), day_school::told_lines(told + "/expected/kagitlar-2.txt"));
    }

    void leaves_in_each_table_what_it_should() {
        const DrawnTimes times;
        for (const File& file : day_school::files()) {
            for (const store::TableDef& table : store::catalogue(file.kind)) {
                const QString name = file.name + '.' + QString::fromStdString(table.name) + ".csv";
                const QString changed = told + "/expected/" + name, as_it_was = told + "/school/" + name;
                const QStringList expected =
                    lines(day_school::told(QFile::exists(changed) ? changed : as_it_was, table), table);
                QList<Record> records = stored(file, table);
                for (Record& record : records) times.put_in(record, table.name);
                const QStringList found = lines(records, table);
                for (qsizetype row = 0; row < std::min(found.size(), expected.size()); ++row)
                    QVERIFY2(found[row] == expected[row],
                             qPrintable(name + ":\n  found    " + found[row] + "\n  expected " + expected[row]));
                QVERIFY2(found.size() == expected.size(), qPrintable(name));
            }
        }
    }

    void leaves_learned_lists_and_no_fault() {
        for (const QString name : {"okullar.txt", "OzelKod.txt"})
            QCOMPARE(text_file::read_lines(school::data_file(day_school::root, name)),
                     day_school::told_lines(told + "/expected/" + name));
        for (const audit::Finding& finding : audit::look_over(day_school::root))
            QVERIFY2(!finding.fault, qPrintable(finding.place + ": " + finding.words));
    }

private:
    const Drives drives_;
};

static const Registered<DayTest> registered;
#include "day_test.moc"
