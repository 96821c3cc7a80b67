// The program as it is started from a shell: its exit status, its words, its bytes.
#include "rows.h"
#include "school.h"
#include "support/drives.h"

#include <QProcess>

#include <tuple>

namespace {

struct Outcome {
    int status;
    QByteArray out;
    QString words;  // on the error stream
};

Outcome run(const QStringList& arguments, const QByteArray& input = {}, const QString& program = KURVO_ARAC) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) return {-1, {}, "crash"};
    return {process.exitCode(), process.readAllStandardOutput(), QString::fromUtf8(process.readAllStandardError())};
}

// The same with a line as it is typed.
Outcome run(const char* line, const QByteArray& input = {}) {
    return run(QString(line).split(' ', Qt::SkipEmptyParts), input);
}

}  // namespace

class ProgramTest : public QObject {
    Q_OBJECT

private slots:
    void exit_status_tells_refusal_from_wrong_use() {
        const Drives drives;
        school::create(rows::root, {"2026"});
        const std::tuple<const char*, int, const char*> lines[]{
            {"", 2, "Kullanım"},
            {"yap", 2, "yap"},
            {"kur --kök x", 2, "--kök"},
            {"kur --ornek çok", 2, "çok"},
            {"kur --donem", 2, "--donem"},
            {"baslat --haklar 11111", 2, "11111"},
            {"baslat --uzak a,b --yalniz-dosya", 2, "--uzak"},
            {"kur --kok d:\\baska --donem 2026 --donem 2027", 0, ""},
            {"kur", 1, "c:\\okul\\data\\Bilgi.mdb"},
            {"kur --donem 2026", 1, "2026ogr.mdb"},
            {"kur --donem=2027", 0, ""},
            {"dok c:\\okul\\data\\Bilgi.mdb Yok", 1, "Yok"},
            {"tablolar c:\\okul\\data\\Yok.mdb", 1, "Yok.mdb"},
            {"yukle c:\\okul\\data\\Bilgi.mdb Ders", 1, "1. satır"}};
        for (const auto& [line, status, words] : lines) {
            const Outcome outcome = run(line);
            QVERIFY2(outcome.words.contains(words), qPrintable(line + (": " + outcome.words)));
            QVERIFY2(outcome.status == status, line);
        }
    }

    void takes_a_table_from_one_file_to_another() {
        const Drives drives;
        QCOMPARE(run("kur --ornek 30 --donem 2026").status, 0);
        QCOMPARE(run("kur --donem 2027").status, 0);
        const QByteArray dumped = run("dok c:\\okul\\data\\2026ogr.mdb Ogrenci").out;
        QCOMPARE(dumped.count("\r\n"), 31);
        QCOMPARE(run("yukle c:\\okul\\data\\2027ogr.mdb Ogrenci", dumped).status, 0);
        QCOMPARE(run("dok c:\\okul\\data\\2027ogr.mdb Ogrenci --sira ONOX").out, dumped);
    }

    void hands_over_what_the_options_say() {
        const Drives drives;
        school::create(rows::root, {"2025", "2026"});
        const auto items = [&] { return drives.bytes("c/qlm/log.txt").replace("\"", "").replace("\r\n", "|"); };
        QCOMPARE(run("baslat --yalniz-dosya").status, 0);
        const QList<QByteArray> usual = items().split('|');
        QCOMPARE(usual.size(), 19);  // the last line end is followed by nothing
        QCOMPARE((QList{usual[0], usual[2], usual[5], usual[7], usual[9], usual[12], usual[17]}),
                 (QList<QByteArray>{"21.1", "c:\\okul\\", "2026", "0", "111111", "c:\\okul\\foto\\", ""}));

        QCOMPARE(run("baslat --yalniz-dosya --donem 2025 --gizle 1 --haklar 010101 --surum= --kullanici AYLA "
                     "--foto d:\\foto --okul KURS --uzak h,v,k,p,a")
                     .status,
                 0);
        QCOMPARE(items(), QByteArray("||c:\\okul\\|KURS||2025||1||010101|AYLA||d:\\foto\\|h|v|k|p|a|"));

        // A copy of the tool alone in a folder has no program beside it.
        const QString alone = drives.path("kurvo-arac");
        QVERIFY(QFile::copy(KURVO_ARAC, alone));
        const Outcome outcome = run({"baslat"}, {}, alone);
        QVERIFY(outcome.status == 1 && outcome.words.contains("kurvo"));
    }
};

static const Registered<ProgramTest> registered;
#include "program_test.moc"
