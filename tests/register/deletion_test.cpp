#include "operation_tests.h"
#include "platform/rich_text.h"
#include "record_desk.h"
#include "term_rows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

std::vector<Row> three_students(const QString& photo = u" "_s) {
    return {{{"ONO", 1249}, {"ADSOY", "ZEYNEP"}},
            {{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"RESIM", rich_text::from_plain(photo)}},
            {{"ONO", 1251}, {"ADSOY", "ALİ"}}};
}

const QString question = u"Kayıt Silinecek.  Emin misiniz?"_s;

}  // namespace

void DeletionTest::student_leaves_all_tables() {
    RecordDesk desk(three_students());
    for (const int student : {1249, 1250, 1251}) term_rows::add(student);
    desk.list.liste_sirala(2);
    KurvoYeni& form = desk.open(u"1250"_s);
    desk.session.studentTable.Seek("=", {1251});  // where another panel had led it
    desk.prompts.expect(question);
    RecordDesk::press(form.CommandSIL);
    QCOMPARE(desk.prompts.seen(), QStringList{u"Dikkat|"_s + question});
    QCOMPARE(term_rows::counts(1250), u"0 0 0 0 0 0 0"_s);
    for (const int student : {1249, 1251}) QCOMPARE(term_rows::counts(student), u"2 2 2 2 2 2 2"_s);
    QCOMPARE(RecordDesk::field(1250, "ONO") + RecordDesk::field(1251, "ONO"), u"?1251"_s);
    QCOMPARE(term_rows::cash_text(u"125001"_s), u"1250  AYŞE #2026"_s);
    QCOMPARE(Desk::column(*desk.kurvo.TABLO, 1), QStringList({u"1251"_s, u"1249"_s}));
    QCOMPARE(form.ONO->text() + form.ADSOY->text(), QString());
    QVERIFY(form.ONO->hasFocus());
    QVERIFY(desk.removed.empty());
}

void DeletionTest::nothing_goes_without_a_yes() {
    RecordDesk desk(three_students());
    term_rows::add(1250);
    KurvoYeni& form = desk.open(u"1250"_s);
    desk.prompts.expect(question, false);
    RecordDesk::press(form.CommandSIL);
    QCOMPARE(form.ADSOY->text(), u"AYŞE"_s);
    // A number without a student is not asked about.
    RecordDesk::press(form.CommandTEMIZLE);
    desk.enter_number(u"1252"_s);
    RecordDesk::press(form.CommandSIL);
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(term_rows::counts(1250), u"2 2 2 2 2 2 2"_s);
    QCOMPARE(RecordDesk::field(1250, "ADSOY"), u"AYŞE"_s);
}

void DeletionTest::photo_of_that_very_name_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("stays");
    QTest::newRow("full name") << "c:\\okul\\foto\\ayse.bmp" << false;
    QTest::newRow("bare name") << "ayse.bmp" << true;
    QTest::newRow("none") << " " << true;
    QTest::newRow("a folder") << "c:\\okul\\foto" << true;
}

void DeletionTest::photo_of_that_very_name() {
    QFETCH(const QString, name);
    RecordDesk desk(three_students(name));
    desk.drives.put(u"c/okul/foto/ayse.bmp"_s, "x");
    KurvoYeni& form = desk.open(u"1250"_s);
    desk.prompts.expect(question);
    RecordDesk::press(form.CommandSIL);
    QTEST(QFile::exists(desk.drives.path(u"c/okul/foto/ayse.bmp"_s)), "stays");
    QCOMPARE(RecordDesk::field(1250, "ONO"), u"?"_s);
}

void DeletionTest::remote_directory_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("removals");
    QTest::newRow("without a key") << "" << 0;
    QTest::newRow("with a key") << "IŞIK" << 1;
}

void DeletionTest::remote_directory() {
    QFETCH(const QString, key);
    QFETCH(const int, removals);
    RecordDesk desk(three_students());
    desk.session.remoteSchoolKey = key;
    KurvoYeni& form = desk.open(u"1250"_s);
    desk.prompts.expect(question);
    RecordDesk::press(form.CommandSIL);
    QCOMPARE(desk.removed, std::vector<std::int64_t>(static_cast<std::size_t>(removals), 1250));
}
