#include "operation_tests.h"
#include "platform/slots.h"
#include "record_desk.h"
#include "term_rows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const std::vector<Row> three_students{{{"ONO", 1249}, {"ADSOY", "ZEYNEP"}},
                                      {{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"KTUTAR", 1000}},
                                      {{"ONO", 1251}, {"ADSOY", "ALİ"}}};
const QString none = u"0 0 0 0 0 0 0"_s, two_each = u"2 2 2 2 2 2 2"_s;
const QString reference_on_drives = u"c/okul/data/Bilgi.mdb"_s;

void renumber(KurvoYeni& form, const QString& number) {
    RecordDesk::press(form.CommandNODGS);
    RecordDesk::fill(form.YENINO, number);
    RecordDesk::press(form.CommandNODEGISTIR);
}

// What would end the program, kept instead.
class Failures {
public:
    Failures() {
        fatal::set_handler([this](const std::exception& error) { texts << QString::fromUtf8(error.what()); });
    }
    ~Failures() { fatal::set_handler({}); }
    QStringList texts;
};

}  // namespace

void RenumberingTest::number_goes_through_all_tables() {
    RecordDesk desk(three_students);
    for (const int student : {1249, 1250, 1251}) term_rows::add(student);
    desk.list.liste_sirala(2);
    KurvoYeni& form = desk.open(u"1250"_s);
    renumber(form, u" 1301"_s);
    QCOMPARE(term_rows::counts(1250), none);
    for (const int student : {1249, 1251, 1301}) QCOMPARE(term_rows::counts(student), two_each);
    QCOMPARE(RecordDesk::field(1250, "ADSOY"), u"?"_s);
    QCOMPARE(RecordDesk::field(1301, "ADSOY"), u"AYŞE"_s);
    QCOMPARE(term_rows::cash_text(u"125002"_s), u"1301  AYŞE #2026"_s);
    QCOMPARE(term_rows::cash_text(u"125101"_s), u"1251  AYŞE #2026"_s);

    // The student stays on the form and on the card, the list in its order.
    QCOMPARE(form.ONO->text(), u"1301"_s);
    QCOMPARE(form.ADSOY->text(), u"AYŞE"_s);
    QVERIFY(!form.FrameNODGS->isVisible() && form.CommandKAYDET->isEnabled());
    QCOMPARE(desk.session.studentTable["ONO"].whole_number(), 1301);
    QCOMPARE(desk.kurvo.LONO->text(), u"1301"_s);
    QVERIFY(desk.session.card_is_of(u"1301"_s));
    QCOMPARE(Desk::column(*desk.kurvo.TABLO, 1), QStringList({u"1251"_s, u"1301"_s, u"1249"_s}));
    QCOMPARE(desk.session.listSortColumn, 2);
    RecordDesk::press(form.CommandKAYDET);
    QCOMPARE(RecordDesk::field(1250, "ADSOY") + RecordDesk::field(1301, "ADSOY"), u"?AYŞE"_s);
}

void RenumberingTest::cash_book_text_data() {
    QTest::addColumn<QString>("kod");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the rest stays") << "1"
                                    << "1250  AYŞE 1250 #2026"
                                    << "1301  AYŞE 1250 #2026";
    QTest::newRow("another number") << "1"
                                    << "12501  AYŞE"
                                    << "12501  AYŞE";
    QTest::newRow("not a collection") << "2"
                                      << "1250  AYŞE"
                                      << "1250  AYŞE";
    QTest::newRow("no blank") << "1"
                              << "1250"
                              << "1250";
    QTest::newRow("blank in front") << "1"
                                    << " 1250 AYŞE"
                                    << " 1250 AYŞE";
}

void RenumberingTest::cash_book_text() {
    QFETCH(const QString, kod);
    QFETCH(const QString, text);
    RecordDesk desk(three_students);
    for (const QString& ksaat : {u"101500"_s, u"999999"_s})  // the second one has lost its cash row
        RecordDesk::add(
            RecordDesk::term_file, "Tahsilat",
            {{"ONO", 1250}, {"VADE", "20261001"}, {"TARIH", "20261105"}, {"SAAT", ksaat}, {"KSAAT", ksaat}});
    term_rows::add_cash_row(u"101500"_s, text, kod);
    renumber(desk.open(u"1250"_s), u"1301"_s);
    QTEST(term_rows::cash_text(u"101500"_s), "expected");
    QCOMPARE(term_rows::counts(1301), u"0 0 0 0 0 0 2"_s);
}

void RenumberingTest::without_collections_the_cash_book_stays_closed() {
    RecordDesk desk(three_students);
    RecordDesk::instalment(1250, u"20261001"_s, 500);
    KurvoYeni& form = desk.open(u"1250"_s);
    QVERIFY(QFile::remove(desk.drives.path(reference_on_drives)));
    renumber(form, u"1301"_s);
    QCOMPARE(term_rows::counts(1301), u"1 0 0 0 0 0 0"_s);
}

void RenumberingTest::refused_numbers_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("refusal");
    const QString taken = u"Dikkat|Bu numarada bir öğrenci kayıtlı."_s,
                  invalid = u"Dikkat|Geçerli bir numara giriniz."_s;
    QTest::newRow("another student's") << "1251" << taken;
    QTest::newRow("the student's own") << "1250" << taken;
    QTest::newRow("empty") << "" << invalid;
    QTest::newRow("zero") << "000" << invalid;
    QTest::newRow("letters behind") << "1301a" << invalid;
    QTest::newRow("negative") << "-5" << invalid;
    QTest::newRow("too large to keep") << "9999999999999999999" << invalid;
}

void RenumberingTest::refused_numbers() {
    QFETCH(const QString, number);
    RecordDesk desk(three_students);
    term_rows::add(1250);
    KurvoYeni& form = desk.open(u"1250"_s);
    desk.prompts.expect(QString());
    renumber(form, number);
    QTEST(desk.prompts.seen().join(u' '), "refusal");
    QCOMPARE(term_rows::counts(1250), two_each);
    QVERIFY(form.FrameNODGS->isVisible() && form.YENINO->hasFocus());
    QCOMPARE(desk.session.studentTable["ONO"].whole_number(), 1250);
}

void RenumberingTest::cut_renumbering_goes_on() {
    RecordDesk desk(three_students);
    term_rows::add(1250);
    term_rows::add_session(1301, u"0902"_s);  // in the way of the student's second session
    KurvoYeni& form = desk.open(u"1250"_s);
    const Failures failures;
    renumber(form, u"1301"_s);
    QCOMPARE(failures.texts.size(), 1);
    QCOMPARE(term_rows::counts(1250), u"0 0 0 2 2 2 2"_s);
    QCOMPARE(term_rows::counts(1301), u"2 2 2 1 0 0 0"_s);
    QCOMPARE(RecordDesk::field(1250, "ADSOY"), u"AYŞE"_s);

    term_rows::remove_session(1301, u"0902"_s);
    RecordDesk::press(form.CommandNODEGISTIR);
    QCOMPARE(failures.texts.size(), 1);
    QCOMPARE(term_rows::counts(1250) + u'|' + term_rows::counts(1301), none + u'|' + two_each);
    QCOMPARE(RecordDesk::field(1301, "ADSOY"), u"AYŞE"_s);
    QCOMPARE(term_rows::cash_text(u"125001"_s), u"1301  AYŞE #2026"_s);
}

// Another day: all rows had come over, but the cash book could not be reached.
void RenumberingTest::cut_before_the_cash_book_goes_on() {
    RecordDesk desk(three_students);
    term_rows::add(1250);
    KurvoYeni& form = desk.open(u"1250"_s);
    const QString reference = desk.drives.path(reference_on_drives), away = reference + u"-"_s;
    {
        const Failures failures;
        QVERIFY(QFile::rename(reference, away));
        renumber(form, u"1301"_s);
        QCOMPARE(failures.texts.size(), 1);
        QVERIFY(QFile::rename(away, reference));
    }
    QCOMPARE(term_rows::counts(1301), two_each);
    RecordDesk::press(form.CommandNODEGISTIR);
    QCOMPARE(RecordDesk::field(1301, "ADSOY"), u"AYŞE"_s);
    QCOMPARE(term_rows::cash_text(u"125001"_s), u"1301  AYŞE #2026"_s);
    QCOMPARE(term_rows::cash_text(u"125002"_s), u"1301  AYŞE #2026"_s);
}

void RenumberingTest::panel_holds_the_buttons() {
    RecordDesk desk(three_students);
    desk.session.mayChangeFees = u"0"_s;
    KurvoYeni& form = desk.open(u"1250"_s);
    const std::vector<QWidget*> held{form.CommandNODGS,  form.CommandAL,       form.CommandTEMIZLE,
                                     form.CommandKAYDET, form.CommandSOZLESME, form.CommandYAZ};
    RecordDesk::press(form.CommandNODGS);
    QVERIFY(form.FrameNODGS->isVisible() && form.YENINO->hasFocus());
    for (const QWidget* button : held) QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
    QTest::keyClick(form.YENINO, Qt::Key_Escape);
    QVERIFY(!form.FrameNODGS->isVisible() && form.ADSOY->hasFocus());
    for (const QWidget* button : held) QVERIFY2(button->isEnabled(), qPrintable(button->objectName()));
    // Who may not delete may not do so behind the panel either.
    QVERIFY(!form.CommandSIL->isEnabled());
}
