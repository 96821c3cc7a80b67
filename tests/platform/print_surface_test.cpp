#include "platform/print_surface.h"

#include "platform/clock.h"
#include "support/drives.h"
#include "support/paper_lines.h"
#include "support/refusal.h"
#include "support/run_all.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cmath>

namespace {

// The printer of one test; the papers that were sent are counted.
class Printer {
public:
    explicit Printer(const QString& told) {
        qputenv("KURVO_PRINTER", told.toUtf8());
        PrintSurface::set_observer([this](const PrintSurface::Document& document) { sent.push_back(document); });
    }
    ~Printer() {
        PrintSurface::set_observer({});
        qunsetenv("KURVO_PRINTER");
    }
    std::vector<PrintSurface::Document> sent;
};

QStringList files_in(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// The top left corner of each word in twips, as another program reads the page.
QMap<QString, QPointF> words_of(const QString& pdf) {
    QProcess reader;
    reader.start("pdftotext", {"-bbox", pdf, "-"});
    reader.waitForFinished();
    QMap<QString, QPointF> words;
    static const QRegularExpression word(R"re(xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="[\d.]+">([^<]+)<)re");
    auto found = word.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()));
    while (found.hasNext()) {
        const auto match = found.next();
        words[match.captured(3)] = QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()) * 20;
    }
    return words;
}

}  // namespace

class PrintSurfaceTest : public QObject {
    Q_OBJECT

private slots:
    void position_follows_the_text() {
        PrintSurface surface("makbuz", "1250");
        surface.font_size(12);
        surface.move_to(1000, 500);
        surface.print("Kalan borcunuz   ");
        const double behind = surface.x();
        surface.print("4");
        QVERIFY(behind > 1000 + 12 * 100 && surface.x() > behind);
        // A font of 12 points is 240 twips high, a little more with the room between lines.
        const double line_height = surface.line_height();
        QVERIFY(line_height > 240 && line_height < 320);
        surface.print_line(" taksit");
        QCOMPARE(surface.x(), 0.0);
        surface.print_line("");
        QCOMPARE(surface.y(), 500 + 2 * line_height);
        surface.new_page();
        QCOMPARE(surface.y(), 0.0);
    }

    void amounts_end_at_one_edge() {
        PrintSurface surface("makbuz", "1250");
        // 13 characters of 90 twips: "1.250" has 8 of them before it.
        QCOMPARE(PrintSurface::right_aligned(4100, "  1.250  "), 4100.0 + 8 * 90);
        QCOMPARE(PrintSurface::right_aligned(4100, "12345678901234"), 4100.0 - 90);
        const auto right_edge = [&](const QString& text) {
            return PrintSurface::right_aligned(4100, text) + surface.text_width(text);
        };
        for (const QString amount : {"5", "99", "500", "12345"})
            QVERIFY(std::abs(right_edge(amount) - right_edge("1250")) < 8);
    }

    void document_is_sent_once() {
        const Drives drives;
        Printer printer("pdf:" + drives.path("papers"));
        PrintSurface("makbuz", "1250").print("nobody asked");
        QVERIFY(printer.sent.empty());

        PrintSurface surface("makbuz", "1250");
        surface.line_width(3);
        surface.move_to(8500, 850);
        surface.print("Tarih");
        surface.line(1000, 3000, 10500, 3000);
        surface.new_page();
        surface.picture(500, 400, 1200, 1500, QImage(2, 2, QImage::Format_RGB32));
        const PrintSurface::Document document = surface.end_document();
        QCOMPARE(printer.sent.size(), 1u);
        QCOMPARE(document.pages.size(), 2u);
        QCOMPARE(paper_lines(document.pages[0]).first().left(9), QString("8500,850 "));
        QCOMPARE(paper_lines(document.pages[0]).last(), QString("1000,3000-10500,3000"));
        QCOMPARE(document.pages[0][1].width, 3);
        QCOMPARE(QPointF(document.pages[1][0].x2, document.pages[1][0].y2), QPointF(1700, 1900));
        QCOMPARE(files_in(drives.path("papers")).size(), 1);
        QVERIFY(surface.end_document().pages.front().empty());
    }

    void positions_in_the_pdf() {
        const Drives drives;
        const Printer printer("pdf:" + drives.path("papers"));
        PrintSurface surface("Ödeme Planı", "1250");
        surface.move_to(1000, 500);
        surface.print("Öğrenci");
        surface.font({14, true, true, {}});
        surface.move_to(8500, 15000);
        surface.print("ŞİRKET");
        const QString file = surface.end_document().file;
        if (QStandardPaths::findExecutable("pdftotext").isEmpty()) QSKIP("no pdftotext to read the page with");
        const QMap<QString, QPointF> words = words_of(file);
        QCOMPARE(words.keys(), QStringList({"Öğrenci", "ŞİRKET"}));
        QVERIFY(QLineF(words["Öğrenci"], QPointF(1000, 500)).length() < 15);
        QVERIFY(QLineF(words["ŞİRKET"], QPointF(8500, 15000)).length() < 15);
    }

    void file_names_never_collide() {
        const Drives drives;
        const Printer printer("pdf:c:\\kağıt");
        const clock_source::Override clock([] { return QDateTime(QDate(2026, 3, 9), QTime(9, 5, 33)); });
        QStringList names;
        for (int copy = 1; copy <= 3; ++copy) {
            PrintSurface surface("Devam/Çizelge", "..\\12");
            surface.print("x");
            surface.end_document();
            names += QString("Devam_Çizelge____12_20260309-090533_%1.pdf").arg(copy);
        }
        QCOMPARE(files_in(drives.path("c/kağıt")), names);
    }

    void refusals_are_told() {
        const Drives drives;
        drives.put("c/dolu", "a file where the folder should be");
        for (const QString told : {"pdf:c:\\dolu", "No such printer"}) {
            Printer printer(told);
            PrintSurface surface("makbuz", "1250");
            surface.print("x");
            const QString said = refusal([&] { surface.end_document(); });
            QVERIFY2(said.contains(told.mid(told.indexOf(':') + 1)), qPrintable(said));
            QVERIFY(!said.contains(drives.path({})));
            QVERIFY(printer.sent.empty());
        }
    }
};

static const Registered<PrintSurfaceTest> registered;
#include "print_surface_test.moc"
