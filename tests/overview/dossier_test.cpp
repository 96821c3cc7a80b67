#include "overview/dossier.h"

#include "platform/slots.h"
#include "student_page.h"
#include "support/paper_lines.h"

#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>

namespace {

using Kind = PrintSurface::Operation::Kind;

// The overview of student 1250, AYŞE, with the papers that were printed.
struct Desk : StudentPage {
    Desk() {
        qputenv("KURVO_PRINTER", "pdf:" + school.drives.path("papers").toUtf8());
        PrintSurface::set_observer([this](const PrintSurface::Document& paper) { papers.push_back(paper); });
        fatal::set_handler([this](const std::exception& error) { failures << QString::fromUtf8(error.what()); });
        session.schoolName = "ÖZEL IŞIK";
        session.lineThickness = "2";
        school.student(1250).name("AYŞE");
        show_student(1250);
        kurvo.LADSOYAD->setText("AYŞE");
        kurvo.LVELI->setText(" OYA");
        press(kurvo.CommandTOPLU);
    }
    ~Desk() {
        PrintSurface::set_observer({});
        fatal::set_handler({});
        qunsetenv("KURVO_PRINTER");
    }

    static void fill(GridView* grid, const QList<QStringList>& rows) {
        const int first = grid->rows();
        grid->set_rows(first + static_cast<int>(rows.size()));
        for (int i = 0; i < rows.size(); ++i) grid->set_row(first + i, rows[i]);
    }
    // Prints what is offered, without the boxes given.
    void print(std::initializer_list<std::size_t> without = {}) {
        press(kurvo.CommandYAZF);
        for (const std::size_t box : without) kurvo.ChkY[box]->setChecked(false);
        press(kurvo.CommandYAZFT);
    }
    void collection(const char* vade, const char* tarih, double odenen) {
        school.add("Tahsilat", {{"ONO", 1250},
                                {"VADE", vade},
                                {"TARIH", tarih},
                                {"SAAT", "101500"},
                                {"ODENEN", odenen},
                                {"KASAFNO", "K7"},
                                {"BTIP", "M"},
                                {"BNO", "41"}});
    }
    const PrintSurface::Page& page(std::size_t number) const { return papers.back().pages.at(number - 1); }
    // What the sections print, without the template's operations and after the first `skip` ones.
    QStringList lines(std::size_t number, qsizetype skip = 0, qsizetype count = -1) const {
        PrintSurface::Page sections;
        for (const PrintSurface::Operation& operation : page(number))
            if (operation.kind != Kind::rich_text && operation.font.family.isEmpty() &&
                operation.width == (operation.kind == Kind::line ? 2 : 1))
                sections.push_back(operation);
        return paper_lines(sections).mid(skip, count);
    }
    bool template_on(std::size_t number) const { return paper_texts(page(number)).contains("Sayfa :"); }

    Dossier dossier{kurvo, session};
    std::vector<PrintSurface::Document> papers;
    QStringList failures;
};

constexpr std::size_t note_box = 1, payments_box = 4;

}  // namespace

class DossierTest : public QObject {
    Q_OBJECT

private slots:
    void template_alone() {
        Desk desk;
        QImage photo(300, 100, QImage::Format_RGB32);
        photo.fill(Qt::red);
        desk.school.drives.put("c/okul/foto/x", {});
        QVERIFY(photo.save(desk.school.drives.path("c/okul/foto/1250.bmp")));
        desk.session.photoFolder = "c:\\okul\\foto\\";
        desk.session.photoFile = "1250.bmp";
        QLabel* const wide[] = {desk.kurvo.LANNE, desk.kurvo.LBABA, desk.kurvo.LATEL, desk.kurvo.LBTEL};
        for (int i = 0; i < 4; ++i) wide[i]->setText(QString("İĞ").repeated(13 + i));
        qApp->setStyleSheet("QLabel[x=\"y\"] { color: red; }");  // as the program's look
        const auto plain_look = qScopeGuard([] { qApp->setStyleSheet({}); });
        desk.kurvo.FToplu_Text1->setHtml("<b>Çalışkan</b> ve <i>dürüst</i>.");
        desk.print();
        QCOMPARE(desk.papers.size(), std::size_t(1));
        QCOMPARE(desk.papers[0].pages.size(), std::size_t(1));
        const QStringList texts = paper_texts(desk.page(1));
        for (const char* text : {"ÖZEL IŞIK", " AYŞE", " 1250", "1", "Okulu :", "   OYA", "  Cep telefonu"})
            QVERIFY2(texts.contains(text), text);
        for (const QLabel* label : wide) QVERIFY(texts.contains("  " + label->text()));  // smaller, not cut
        for (const PrintSurface::Operation& operation : desk.page(1)) {
            QVERIFY(operation.x >= 500 && operation.x2 <= 11400 && operation.y2 <= 16340);
            if (operation.kind == Kind::picture)
                QVERIFY(std::abs((operation.x2 - operation.x) / 3 - operation.y2 + operation.y) < 5);
            if (operation.kind == Kind::text) QCOMPARE(operation.font.family, "Times New Roman");
            if (operation.kind == Kind::rich_text) QCOMPARE(operation.text, "Çalışkan ve dürüst.");
        }
        if (QStandardPaths::findExecutable("pdftotext").isEmpty()) QSKIP("no pdftotext to read the page with");
        QProcess reader;
        reader.start("pdftotext", {desk.papers[0].file, "-"});
        reader.waitForFinished();
        QVERIFY(QString::fromUtf8(reader.readAllStandardOutput()).contains("Çalışkan ve dürüst."));
        QCOMPARE(desk.failures, QStringList());
    }

    void payments_on_the_first_page() {
        Desk desk;
        const QString remark = QString("elden ").repeated(12).trimmed();
        Desk::fill(desk.kurvo.FToplu_Tablo2, {{"01.10.2026", "Nakit", "1.000", "400", "600", remark, "K7, "},
                                              {"01.11.2026", "Senet", "500", "", "500", " ", ""}});
        desk.collection("20261001", "20261005", 1250.5);
        desk.collection("20261101", "20261105", 3);
        desk.kurvo.TTUTAR->setText("1500");
        desk.print({note_box});
        QCOMPARE(desk.papers[0].pages.size(), std::size_t(1));
        QVERIFY(desk.template_on(1) && !paper_texts(desk.page(1)).contains("Okulu :"));
        const QStringList lines = desk.lines(1);
        QCOMPARE(lines.first(10).join(u'#'),
                 "600,2800 12 b ÖDEMELER#600,3300 10 - Vade Tarihi#1800,3300 10 - Öd.Şekli#3000,3300 10 - Tutar#"
                 "4000,3300 10 - Ödenen#5100,3300 10 - Kalan#6000,3300 10 - Açıklama#9000,3300 10 - Kasa Fiş No#"
                 "600,3560-10500,3560#600,3600 10 - 01.10.2026");
        QCOMPARE(lines.mid(11, 3).join(u'#'), "3050,3600 10 - 1.000#4330,3600 10 - 400#5430,3600 10 - 600");
        // The long remark takes two lines; 200 more than a row of one.
        QCOMPARE(lines.mid(15, 6).join(u'#').remove("elden ").remove("elden"),
                 "6000,3800 10 - #9000,3600 10 - K7, #800,4050 8 - 05.10.2026#4070,4050 8 - 1.250,5#"
                 "6000,4050 8 - M 41#9000,4050 8 - K7");
        QCOMPARE(lines[21], "600,4280 10 - 01.11.2026");
        QCOMPARE(lines.mid(lines.size() - 4).join(u'#'),
                 "9000,4530 8 - K7#600,4760-10500,4760#600,4810 10 - Toplam#3140,4810 10 - 1500");
    }

    void page_ends() {
        Desk desk;
        QList<QStringList> rows;
        for (int i = 0; i < 44; ++i) rows << QStringList{"01.09.2026"};
        Desk::fill(desk.kurvo.FToplu_Tablo2, rows << QStringList{"01.10.2026"} << QStringList{"01.11.2026"});
        // The 45th row stands at 3600 + 44 * 250 = 14600 and leaves room for one of its collections.
        desk.collection("20261001", "20261005", 1);
        desk.collection("20261001", "20261006", 2);
        for (int i = 0; i < 50; ++i) Desk::fill(desk.kurvo.FToplu_DEVAMS, {{"05.10.2026", "1", "", "12"}});
        desk.print({note_box});
        QCOMPARE(desk.papers[0].pages.size(), std::size_t(3));
        QVERIFY(desk.template_on(1) && !desk.template_on(2));
        QVERIFY(desk.lines(1).last().endsWith("14850 8 - K7"));
        const QStringList second = desk.lines(2);
        QCOMPARE(second.first(3).join(u'#'), "8000,100 8 - Sayfa : 2  AYŞE#800,500 8 - 06.10.2026#4610,500 8 - 2");
        QVERIFY(second.contains("600,730 10 - 01.11.2026") && second.contains("600,1030 10 - Toplam"));
        // The totals leave the line: 980 + 800.
        QVERIFY(second.contains("600,1780 12 b DEVAMSIZLIKLAR"));
        // Rows from 2580: the 50th is the last that has room, and leaves none for the totals.
        QVERIFY(second.contains("600,14830 10 - 05.10.2026"));
        QCOMPARE(desk.lines(3).first(2).join(u'#'), "8000,100 8 - Sayfa : 3  AYŞE#2000,500 10 - Toplam");
    }

    void high_row_stays_on_the_sheet() {
        Desk desk;
        QList<QStringList> rows(45, {"01.09.2026"});
        rows << QStringList{"01.10.2026", "", "", "", "", " ", QString("K1234567, ").repeated(20)};
        Desk::fill(desk.kurvo.FToplu_Tablo2, rows);
        desk.print({note_box});
        QCOMPARE(desk.lines(1).last(), "600,14600 10 - 01.09.2026");
        QCOMPARE(desk.lines(2)[1], "600,500 10 - 01.10.2026");
    }

    void absences_as_they_are_shown() {
        Desk desk;
        Desk::fill(desk.kurvo.FToplu_DEVAMS, {{"05.10.2026", "1", "0", "12"}, {"05.10.2026", "2", "0", "0"}});
        Desk::fill(desk.kurvo.FToplu_DEVAMSe, {{"06.10.2026", "0", "3", "0", "Fizik"}});
        desk.kurvo.FToplu_TOP1->setText("3");
        desk.kurvo.FToplu_TOP3->setText("12");
        desk.print();
        QCOMPARE(desk.papers[0].pages.size(), std::size_t(2));
        QVERIFY(desk.template_on(1) && desk.lines(1).isEmpty());
        const QStringList lines = desk.lines(2);
        QCOMPARE(lines.mid(1, 15).join(u'#'),
                 "600,500 12 b DEVAMSIZLIKLAR#600,1000 10 - Tarih#2000,1000 10 - Ders#4000,1000 10 - İzinli#"
                 "5000,1000 10 - İzinsiz#6000,1000 10 - Raporlu#600,1260-7000,1260#600,1300 10 - 05.10.2026#"
                 "4360,1300 10 - 1#5360,1300 10 - 0#6270,1300 10 - 12#600,1550 10 - 05.10.2026#4360,1550 10 - 2#"
                 "5360,1550 10 - 0#6360,1550 10 - 0");
        QCOMPARE(lines[16] + '#' + lines[17], "2000,1800 10 - Toplam#4360,1800 10 - 3");
        QVERIFY(lines.contains("2000,2200 10 - Toplam devamsız olduğu gün sayısı = 1"));
        QVERIFY(lines.contains("600,3000 12 b ZORUNLU ETÜD DEVAMSIZLIKLARI"));
        QVERIFY(lines.contains("2000,3800 10 - Fizik"));
    }

    void sessions_of_each_lesson() {
        Desk desk;
        Desk::fill(desk.kurvo.FToplu_ETUDLER, {{"X", "05.10.2026", "09:30", "Fizik", "Ali Can", "Kuvvet"},
                                               {" ", "06.10.2026", "09:30", "Kimya", "Ali Can", "Asit"},
                                               {"X", "07.10.2026", "09:30", "Fizik", "Ali Can", " "}});
        desk.print({note_box});
        const QStringList lines = desk.lines(1, 7);
        QCOMPARE(lines.first(7).join(u'#'),
                 "600,3560-10700,3560#600,3600 10 - 05.10.2026#1700,3600 10 - 09:30#2500,3600 10 - Fizik#"
                 "4500,3600 10 - Ali Can#7000,3600 10 - Kuvvet#10200,3600 10 - X");
        QCOMPARE(lines.last(2).join(u'#'),
                 "1360,4550 10 - 2  kez Fizik dersinden etüd almış,  devamlılığı = 0#"
                 "1360,4850 10 - 1  kez Kimya dersinden etüd almış,  devamlılığı = 0");
    }

    void long_note_goes_on() {
        Desk desk;
        QStringList note;
        for (int i = 0; i < 200; ++i) note << QString::number(i) + "x";
        desk.kurvo.FToplu_Text1->setPlainText(note.join(u'\n'));
        Desk::fill(desk.kurvo.FToplu_DEVAMS, {{"05.10.2026", "1", "0", "12"}});
        desk.print();
        const std::size_t pages = desk.papers[0].pages.size();
        QVERIFY(pages > 3);
        QStringList read;
        for (const PrintSurface::Page& page : desk.papers[0].pages)
            for (const PrintSurface::Operation& operation : page)
                if (operation.kind == Kind::rich_text) read << operation.text.split(u'\n');
        QCOMPARE(read, note);
        QCOMPARE(desk.lines(2), QStringList("8000,100 8 - Sayfa : 2  AYŞE"));
        QCOMPARE(desk.lines(pages)[1], "600,500 12 b DEVAMSIZLIKLAR");
    }

    void choice_holds_the_student() {
        Desk desk;
        Desk::fill(desk.kurvo.FToplu_ETUDLER, {{"X", "05.10.2026", "09:30", "Fizik"}});
        desk.kurvo.kilitle({desk.kurvo.CommandSBUL});  // somebody else's
        desk.kurvo.LONO->setText("99");
        desk.press(desk.kurvo.CommandYAZF);
        QVERIFY(!desk.kurvo.FToplu_FrameYaz->isVisible());
        desk.kurvo.LONO->setText("1250");
        desk.press(desk.kurvo.CommandYAZF);
        QString boxes;
        for (const QCheckBox* box : desk.kurvo.ChkY)
            boxes += box->isEnabled() ? box->isChecked() ? 'X' : 'o' : box->isChecked() ? '?' : '-';
        QCOMPARE(boxes, "-X-X-");
        const auto usable = [&](const QWidget* control) { return control->isEnabled(); };
        const QWidget* held[] = {desk.kurvo.SSTab1,  desk.kurvo.TABLO,        desk.kurvo.LONO,       desk.kurvo.SDONEM,
                                 desk.kurvo.bslk[2], desk.kurvo.CommandTOPLU, desk.kurvo.CommandYAZF};
        QVERIFY(std::none_of(std::begin(held), std::end(held), usable));
        QTest::keyClick(&desk.kurvo, Qt::Key_Escape);
        QVERIFY(!desk.kurvo.FToplu_FrameYaz->isVisible());
        QVERIFY(std::all_of(std::begin(held), std::end(held), usable));

        qputenv("KURVO_PRINTER", "No such printer");
        desk.press(desk.kurvo.CommandYAZF);
        desk.kurvo.ChkY[payments_box]->setChecked(true);  // disabled: prints nothing
        desk.press(desk.kurvo.CommandYAZFT);
        QCOMPARE(desk.failures.size(), 1);
        QVERIFY(desk.papers.empty() && std::all_of(std::begin(held), std::end(held), usable));
        QVERIFY(!desk.kurvo.CommandSBUL->isEnabled());
    }

    void plan_after_a_posting() {
        Desk desk;
        desk.press(desk.kurvo.CommandYAZF);  // no payments to be had yet
        desk.press(desk.kurvo.CommandVAZGECY);
        Desk::fill(desk.kurvo.FToplu_Tablo2, {{"01.10.2026", "Nakit", "1.000", "400", "600", " ", ""}});
        Desk::fill(desk.kurvo.FToplu_DEVAMS, {{"05.10.2026", "1", "0", "12"}});
        desk.collection("20261001", "20261005", 400);
        desk.kurvo.kilitle(desk.kurvo.student_choice());  // as the collection's second stage does
        desk.dossier.plan_yaz();
        QCOMPARE(desk.papers[0].paper, "Ödeme Planı");
        QCOMPARE(desk.papers[0].pages.size(), std::size_t(1));
        const QStringList texts = paper_texts(desk.page(1));
        QVERIFY(texts.contains("ÖDEMELER") && texts.contains("M 41") && texts.contains(" AYŞE"));
        QVERIFY(!texts.contains("DEVAMSIZLIKLAR") && !texts.contains("Okulu :"));
        QVERIFY(!desk.kurvo.LONO->isEnabled());
    }
};

static const Registered<DossierTest> registered;
#include "dossier_test.moc"
