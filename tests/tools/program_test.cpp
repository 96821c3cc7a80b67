// The program as it is started from a shell: its exit status, its words, its bytes.
#include "rows.h"
#include "school.h"
#include "tool_tests.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int status;
    QByteArray out;
    QString words;  // on the error stream
};

Outcome run(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(QStringLiteral(KURVO_ARAC), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) return {-1, {}, u"crash"_s};
    return {process.exitCode(), process.readAllStandardOutput(), QString::fromUtf8(process.readAllStandardError())};
}

}  // namespace

void ProgramTest::exit_status_tells_refusal_from_wrong_use_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("words");
    const auto row = [](const QString& line, int status, const QString& words) {
        QTest::newRow(qPrintable(line)) << line.split(u' ', Qt::SkipEmptyParts) << status << words;
    };
    row(u""_s, 2, u"Kullanım"_s);
    row(u"yap"_s, 2, u"yap"_s);
    row(u"kur --kök x"_s, 2, u"--kök"_s);
    row(u"kur --ornek çok"_s, 2, u"çok"_s);
    row(u"kur --donem"_s, 2, u"--donem"_s);
    row(u"kur fazla"_s, 2, u"fazla"_s);
    row(u"kullanici"_s, 2, u"Kullanım"_s);
    row(u"baslat --haklar 11111"_s, 2, u"11111"_s);
    row(u"baslat --uzak a,b --yalniz-dosya"_s, 2, u"--uzak"_s);
    row(u"baslat --yalniz-dosya=1"_s, 2, u"--yalniz-dosya"_s);
    row(u"kur --kok d:\\baska --donem 2026 --donem 2027"_s, 0, u""_s);
    row(u"kur"_s, 1, u"c:\\okul\\data\\Bilgi.mdb"_s);
    row(u"kur --donem 2026"_s, 1, u"2026ogr.mdb"_s);
    row(u"kur --donem=2027"_s, 0, u""_s);
    row(u"dok c:\\okul\\data\\Bilgi.mdb Yok"_s, 1, u"Yok"_s);
    row(u"tablolar c:\\okul\\data\\Yok.mdb"_s, 1, u"Yok.mdb"_s);
    row(u"yukle c:\\okul\\data\\Bilgi.mdb Ders"_s, 1, u"1. satır"_s);
    row(u"tablolar c:\\okul\\data\\Bilgi.mdb"_s, 0, u""_s);
}

void ProgramTest::exit_status_tells_refusal_from_wrong_use() {
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, words);
    school::create(school::default_root, {u"2026"_s});
    const Outcome outcome = run(arguments);
    QVERIFY2(outcome.words.contains(words), qPrintable(outcome.words));
    QCOMPARE(outcome.status, status);
}

void ProgramTest::every_verb_has_help_data() {
    QTest::addColumn<QString>("verb");
    for (const char* verb : {"kur", "kullanici", "baslat", "tablolar", "dok", "yukle"}) QTest::newRow(verb) << verb;
}

void ProgramTest::every_verb_has_help() {
    QFETCH(QString, verb);
    const Outcome outcome = run({verb, u"--help"_s});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.startsWith("Kullanım: kurvo-arac " + verb.toUtf8()));
    QVERIFY(run({u"--help"_s}).out.contains("\n  " + verb.toUtf8() + " "));
}

void ProgramTest::takes_a_table_from_one_file_to_another() {
    QCOMPARE(run({u"kur"_s, u"--ornek"_s, u"30"_s, u"--donem"_s, u"2026"_s}).status, 0);
    QCOMPARE(run({u"kur"_s, u"--donem"_s, u"2027"_s}).status, 0);
    const QString other = drives_->path(u"c/okul/data/2027ogr.mdb"_s);
    const Outcome dumped = run({u"dok"_s, rows::term, u"Ogrenci"_s});
    QCOMPARE(dumped.status, 0);
    QCOMPARE(dumped.out.count("\r\n"), 31);
    QCOMPARE(run({u"yukle"_s, other, u"Ogrenci"_s}, dumped.out).status, 0);
    QCOMPARE(run({u"dok"_s, other, u"Ogrenci"_s, u"--sira"_s, u"ONOX"_s}).out, dumped.out);
}

void ProgramTest::hands_over_what_the_options_say() {
    school::create(school::default_root, {u"2025"_s, u"2026"_s});
    const auto items = [this] {
        QStringList result;
        for (const QByteArray& line : drives_->bytes(u"c/qlm/log.txt"_s).split('\n'))
            result.append(QString::fromLatin1(line.trimmed()).remove(u'"'));
        return result;
    };
    QCOMPARE(run({u"baslat"_s, u"--yalniz-dosya"_s}).status, 0);
    const QStringList usual = items();
    QCOMPARE(usual.size(), 19);  // the last line end is followed by nothing
    QCOMPARE(usual[0], u"21.1"_s);
    QCOMPARE(usual[2], u"c:\\okul\\"_s);
    QCOMPARE(usual[5], u"2026"_s);
    QCOMPARE(usual[7], u"0"_s);
    QCOMPARE(usual[9], u"111111"_s);
    QCOMPARE(usual[12], u"c:\\okul\\foto\\"_s);
    QCOMPARE(usual[17], u""_s);

    QCOMPARE(run({u"baslat"_s, u"--yalniz-dosya"_s, u"--donem"_s, u"2025"_s, u"--gizle"_s, u"1"_s, u"--haklar"_s,
                  u"010101"_s, u"--surum"_s, u""_s, u"--kullanici"_s, u"AYLA"_s, u"--foto"_s, u"d:\\foto"_s,
                  u"--okul"_s, u"KURS"_s, u"--uzak"_s, u"h,v,k,p,a"_s})
                 .status,
             0);
    QCOMPARE(items(),
             QStringList({u""_s, u""_s, u"c:\\okul\\"_s, u"KURS"_s, u""_s, u"2025"_s, u""_s, u"1"_s, u""_s, u"010101"_s,
                          u"AYLA"_s, u""_s, u"d:\\foto\\"_s, u"h"_s, u"v"_s, u"k"_s, u"p"_s, u"a"_s, u""_s}));
}

void ProgramTest::says_when_the_program_is_not_there() {
    school::create(school::default_root, {u"2026"_s});
    // A copy of the tool alone in a folder has no program beside it.
    const QString alone = drives_->path(u"kurvo-arac"_s);
    QVERIFY(QFile::copy(QStringLiteral(KURVO_ARAC), alone));
    QProcess process;
    process.start(alone, {u"baslat"_s});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(QString::fromUtf8(process.readAllStandardError()).contains(u"kurvo"_s));
}
