#include "desk.h"
#include "platform/slots.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const std::vector<Row> three_students{{{"ONO", 1249}, {"ADSOY", "ZEYNEP"}},
                                      {{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"KTUTAR", 1000}},
                                      {{"ONO", 1251}, {"ADSOY", "ALİ"}}};
const QString none = u"0 0 0 0 0 0 0"_s, two_each = u"2 2 2 2 2 2 2"_s;

void renumber(KurvoYeni& form, const QString& number) {
    Desk::press(form.CommandNODGS);
    Desk::fill(form.YENINO, number);
    Desk::press(form.CommandNODEGISTIR);
}

}  // namespace

class AllTablesTest : public QObject {
    Q_OBJECT

private slots:
    void number_goes_through_all_tables() {
        Desk desk(three_students);
        for (const int student : {1249, 1250, 1251}) desk.add_rows(student);
        desk.list.liste_sirala(2);
        KurvoYeni& form = desk.open(u"1250"_s);
        for (const char* number : {"1251", "1250", "", "000", "1301a", "9999999999999999999"}) {
            desk.prompts.expect(QString(number).startsWith(u"125"_s) ? u"Bu numarada bir öğrenci kayıtlı."_s
                                                                     : u"Geçerli bir numara giriniz."_s);
            renumber(form, QString(number));
            QCOMPARE(desk.prompts.failures(), QStringList());
            QVERIFY(form.FrameNODGS->isVisible() && form.YENINO->hasFocus());
            QTest::keyClick(form.YENINO, Qt::Key_Escape);
            QVERIFY(!form.FrameNODGS->isVisible() && form.CommandKAYDET->isEnabled());
        }
        QCOMPARE(desk.counts(1250), two_each);
        renumber(form, u" 1301"_s);
        QCOMPARE(desk.counts(1250), none);
        for (const int student : {1249, 1251, 1301}) QCOMPARE(desk.counts(student), two_each);
        QCOMPARE(desk.field(1250, u"ADSOY"_s) + desk.field(1301, u"ADSOY"_s), u"?AYŞE"_s);
        QCOMPARE(desk.cash_text(u"125002"_s), u"1301  AYŞE #2026"_s);
        QCOMPARE(desk.cash_text(u"125101"_s), u"1251  ALİ #2026"_s);

        // The student stays on the form and on the card, the list in its order.
        QCOMPARE(form.ONO->text() + form.ADSOY->text(), u"1301AYŞE"_s);
        QVERIFY(!form.FrameNODGS->isVisible() && form.CommandKAYDET->isEnabled());
        QCOMPARE(desk.kurvo.LONO->text(), u"1301"_s);
        QVERIFY(desk.session.card_is_of(u"1301"_s));
        QCOMPARE(desk.listed(), QStringList({u"1251"_s, u"1301"_s, u"1249"_s}));
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(1250, u"ADSOY"_s) + desk.field(1301, u"ADSOY"_s), u"?AYŞE"_s);
    }

    void cash_book_text() {
        Desk desk(three_students);
        // The collection at 101500 has lost its cash row.
        const QStringList texts{u"1250  AYŞE 1250 #2026"_s, u"12501  AYŞE"_s, u" 1250 AYŞE"_s, u"1250  AYŞE"_s};
        for (int i = 0; i <= 4; ++i) {
            const QString at = QString::number(101500 + i);
            desk.school.add("Tahsilat",
                            {{"ONO", 1250}, {"VADE", "20261001"}, {"TARIH", "20261105"}, {"SAAT", at}, {"KSAAT", at}});
            if (i == 0) continue;
            const char* kind = i == 4 ? "2" : "1";  // the last one is no collection
            desk.school.add("Kasa", {{"TARIH", "20261105"}, {"SAAT", at}, {"ACK", texts[i - 1]}, {"KOD", kind}});
        }
        renumber(desk.open(u"1250"_s), u"1301"_s);
        QCOMPARE(desk.cash_text(u"101501"_s), u"1301  AYŞE 1250 #2026"_s);
        for (int i = 2; i <= 4; ++i) QCOMPARE(desk.cash_text(QString::number(101500 + i)), texts[i - 1]);
        QCOMPARE(desk.counts(1301), u"0 0 0 0 0 0 5"_s);
    }

    void cut_renumbering_goes_on() {
        Desk desk(three_students);
        desk.add_rows(1250);
        // In the way of the student's second session.
        desk.school.add("Etud", {{"ONO", 1301}, {"TARIH", "20261105"}, {"SAAT", "0902"}, {"KOD", "MT"}});
        KurvoYeni& form = desk.open(u"1250"_s);
        QStringList failures;  // what would end the program
        fatal::set_handler([&](const std::exception& error) { failures << QString::fromUtf8(error.what()); });
        const auto reset = qScopeGuard([] { fatal::set_handler({}); });
        renumber(form, u"1301"_s);
        QCOMPARE(failures.size(), 1);
        QCOMPARE(desk.counts(1250), u"0 0 0 2 2 2 2"_s);
        QCOMPARE(desk.counts(1301), u"2 2 2 1 0 0 0"_s);
        QCOMPARE(desk.field(1250, u"ADSOY"_s), u"AYŞE"_s);

        {
            store::Recordset sessions = desk.session.termDb.OpenRecordset("Etud");
            sessions.Seek("=", {1301, "20261105", "0902"});
            sessions.Delete();
        }
        const QString reference = desk.drives.path(u"c/okul/data/Bilgi.mdb"_s), away = reference + u"-"_s;
        QVERIFY(QFile::rename(reference, away));  // the next day the cash book cannot be reached
        Desk::press(form.CommandNODEGISTIR);
        QCOMPARE(failures.size(), 2);
        QCOMPARE(desk.counts(1301), two_each);
        QVERIFY(QFile::rename(away, reference));
        Desk::press(form.CommandNODEGISTIR);
        QCOMPARE(failures.size(), 2);
        QCOMPARE(desk.counts(1250) + u'|' + desk.counts(1301), none + u'|' + two_each);
        QCOMPARE(desk.field(1301, u"ADSOY"_s), u"AYŞE"_s);
        QCOMPARE(desk.cash_text(u"125001"_s) + desk.cash_text(u"125002"_s), u"1301  AYŞE #20261301  AYŞE #2026"_s);
    }

    void deleted_student_leaves_all_tables() {
        const QString question = u"Kayıt Silinecek.  Emin misiniz?"_s, photo = u"c/okul/foto/ayse.bmp"_s;
        Desk desk(three_students);
        desk.school.student(1250).photo(u"c:\\okul\\foto\\ayse.bmp"_s);
        desk.drives.put(photo, "x");
        for (const int student : {1249, 1250, 1251}) desk.add_rows(student);
        desk.list.liste_sirala(2);
        desk.session.remoteSchoolKey = u"IŞIK"_s;
        KurvoYeni& form = desk.open(u"1250"_s);
        desk.session.studentTable.Seek("=", {1251});  // where another panel had led it
        desk.prompts.expect(question, false);
        Desk::press(form.CommandSIL);
        QCOMPARE(form.ADSOY->text() + desk.counts(1250), u"AYŞE2 2 2 2 2 2 2"_s);
        desk.prompts.expect(question);
        Desk::press(form.CommandSIL);
        QCOMPARE(desk.counts(1250), none);
        for (const int student : {1249, 1251}) QCOMPARE(desk.counts(student), two_each);
        QCOMPARE(desk.field(1250, u"ONO"_s) + desk.field(1251, u"ONO"_s), u"?1251"_s);
        QCOMPARE(desk.cash_text(u"125001"_s), u"1250  AYŞE #2026"_s);
        QCOMPARE(desk.listed(), QStringList({u"1251"_s, u"1249"_s}));
        QCOMPARE(form.ONO->text() + form.ADSOY->text(), QString());
        QVERIFY(form.ONO->hasFocus());
        QVERIFY(!QFile::exists(desk.drives.path(photo)));
        QCOMPARE(desk.removed, std::vector<std::int64_t>{1250});
        form.close();  // whoever was removed leaves no card behind
        QVERIFY(!desk.session.studentSelected);
        QCOMPARE(desk.kurvo.LONO->text() + desk.kurvo.LADSOYAD->text(), QString());
    }
};

static const Registered<AllTablesTest> registered;
#include "all_tables_test.moc"
