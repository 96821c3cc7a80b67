#include "register/photo_capture.h"

#include "desk.h"
#include "platform/rich_text.h"

#include <QCameraDevice>
#include <QMediaDevices>

namespace {

// A webcam that shows red at the left and blue at the right, behind narrow green margins; the card of 1250 has a
// yellow photo.
struct Studio : Desk {
    Studio()
        : Desk({{{"ONO", 7}, {"ADSOY", "CAN"}, {"RESIM", rich_text::from_plain("can.bmp")}},
                {{"ONO", 1250}, {"ADSOY", "AYŞE"}, {"RESIM", rich_text::from_plain("eski.bmp")}}}) {
        QImage frame(640, 480, QImage::Format_RGB32), former(40, 40, QImage::Format_RGB32);
        former.fill(Qt::yellow);
        for (int x = 0; x < 640; ++x) {
            const QColor color = x < 20 || x >= 620 ? Qt::green : x < 320 ? Qt::red : Qt::blue;
            for (int y = 0; y < 480; ++y) frame.setPixelColor(x, y, color);
        }
        if (!frame.save(webcam) || !QDir().mkpath(drives.path("c/okul/foto")) ||
            !former.save(drives.path("c/okul/foto/eski.bmp")))
            qFatal("the studio cannot be set up");
        qputenv("KURVO_CAMERA", webcam.toUtf8());
    }
    ~Studio() { qunsetenv("KURVO_CAMERA"); }

    QColor shown() const {
        const QPixmap picture = kurvo.Image1->pixmap();
        return picture.isNull() ? QColor() : picture.toImage().pixelColor(10, picture.height() / 2);
    }
    QString enabled() const {
        QStringList names;
        for (const QWidget* control : std::initializer_list<const QWidget*>{
                 kurvo.CommandFOTOac, kurvo.CommandFOTOcek, kurvo.CommandFOTOayar, kurvo.CommandFOTOsize,
                 kurvo.CommandFOTOcik, kurvo.TABLO, kurvo.LONO, kurvo.SDONEM, kurvo.CommandSBUL, kurvo.CommandYENI,
                 kurvo.CommandDOSYADAN})
            if (control->isEnabled()) names << control->objectName().remove("Command");
        return names.join(' ');
    }
    QString photo_of(int student) const { return rich_text::plain(field(student, "RESIM")); }

    const QString webcam = drives.path("webcam.png");
    PhotoCapture photos{kurvo, session, card};
};

const QString closed = "FOTOac TABLO LONO SDONEM SBUL YENI DOSYADAN", opened = "FOTOcek FOTOayar FOTOsize FOTOcik";

}  // namespace

class PhotoCaptureTest : public QObject {
    Q_OBJECT

private slots:
    void photo_lands_on_card_and_disk() {
        Studio studio;
        Studio::press(studio.kurvo.CommandFOTOac);  // nobody is chosen
        QCOMPARE(studio.enabled(), closed);
        studio.type_number("1250");
        QCOMPARE(studio.shown(), QColor(Qt::yellow));
        Studio::press(studio.kurvo.CommandFOTOac);
        QCOMPARE(studio.enabled(), opened);
        QTRY_COMPARE(studio.shown(), QColor(Qt::red));
        for (const auto& [button, choice] :
             {std::pair(studio.kurvo.CommandFOTOayar, "webcam.png"), {studio.kurvo.CommandFOTOsize, "640 × 480"}}) {
            Studio::press(button);
            QAction* offered = button->findChild<QMenu*>()->actions().value(0);
            QVERIFY(offered->isChecked());
            QCOMPARE(offered->text(), choice);
            button->findChild<QMenu*>()->close();
        }
        Studio::press(studio.kurvo.CommandFOTOcek);
        QCOMPARE(studio.enabled(), closed);
        QCOMPARE(studio.photo_of(1250), "2026_1250.bmp");
        QCOMPARE(studio.photo_of(7), "can.bmp");
        QCOMPARE(studio.session.photoFile, "2026_1250.bmp");
        QCOMPARE(studio.shown(), QColor(Qt::red));
        QCOMPARE(studio.drives.bytes("c/okul/foto/2026_1250.bmp").left(2), QByteArray("BM"));
        const QImage photo(studio.drives.path("c/okul/foto/2026_1250.bmp"));
        QCOMPARE(photo.size(), QSize(352, 288));
        QCOMPARE(photo.pixelColor(2, 100), QColor(Qt::red));  // the middle of the frame, unsqueezed
        QCOMPARE(photo.pixelColor(349, 100), QColor(Qt::blue));
        studio.type_number("7");
        studio.type_number("1250");
        QCOMPARE(studio.shown(), QColor(Qt::red));
    }

    void number_without_student_and_closing_leave_the_rows() {
        Studio studio;
        studio.type_number("1250");
        studio.type_number("99");
        Studio::press(studio.kurvo.CommandFOTOac);
        QTRY_COMPARE(studio.shown(), QColor(Qt::red));
        Studio::press(studio.kurvo.CommandFOTOcik);
        QCOMPARE(studio.shown(), QColor(Qt::yellow));
        Studio::press(studio.kurvo.CommandFOTOac);
        QTRY_COMPARE(studio.shown(), QColor(Qt::red));
        Studio::press(studio.kurvo.CommandFOTOcek);
        QVERIFY(!studio.drives.bytes("c/okul/foto/2026_99.bmp").isEmpty());
        QCOMPARE(studio.photo_of(1250) + ' ' + studio.photo_of(7), "eski.bmp can.bmp");
        Studio::press(studio.kurvo.CommandFOTOac);
        QTimer* timer = studio.photos.findChild<QTimer*>("Timer1");
        QVERIFY(timer->isActive());
        studio.kurvo.close();
        QVERIFY(!timer->isActive());
    }

    void failure_is_told_by_the_tooltip_alone_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("said");
        const QStringList faults[]{{"none", "Kamera bulunamadı"},       {"missing", "Kamera açılamadı"},
                                   {"damaged", "Kamera açılamadı"},     {"pulled", "Kamera durdu"},
                                   {"place", "bu adda bir klasör var"}, {"row", "kaydına yazılamadı"}};
        for (const QStringList& fault : faults) QTest::newRow(qPrintable(fault[0])) << fault[0] << fault[1];
    }
    void failure_is_told_by_the_tooltip_alone() {
        QFETCH(QString, fault);
        QFETCH(QString, said);
        Studio studio;
        studio.type_number("1250");
        if (fault == "missing") QFile::remove(studio.webcam);
        if (fault == "damaged") studio.drives.put("webcam.png", "\x89PNG cut");
        if (fault == "place") QVERIFY(QDir().mkpath(studio.drives.path("c/okul/foto/2026_1250.bmp")));
        if (fault == "none") {
            qunsetenv("KURVO_CAMERA");
            if (!QMediaDevices::videoInputs().isEmpty()) QSKIP("this machine has a camera");
        }
        Studio::press(studio.kurvo.CommandFOTOac);
        if (fault == "pulled") {
            QTRY_COMPARE(studio.shown(), QColor(Qt::red));
            QFile::remove(studio.webcam);
        }
        if (fault == "place" || fault == "row") {
            QTRY_COMPARE(studio.shown(), QColor(Qt::red));
            if (fault == "row") studio.session.studentTable.Close();
            Studio::press(studio.kurvo.CommandFOTOcek);
        }
        QTRY_COMPARE(studio.enabled(), closed);
        QVERIFY2(studio.kurvo.Image1->toolTip().contains(said), qPrintable(studio.kurvo.Image1->toolTip()));
        QCOMPARE(studio.photo_of(1250), "eski.bmp");
        QCOMPARE(studio.shown(), fault == "row" ? QColor(Qt::red) : QColor(Qt::yellow));
        QCOMPARE(studio.prompts.seen(), QStringList());
    }
};

static const Registered<PhotoCaptureTest> registered;
#include "photo_capture_test.moc"
