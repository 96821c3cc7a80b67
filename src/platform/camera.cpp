#include "platform/camera.h"

#include "platform/paths.h"
#include "platform/refusal.h"

#include <QCamera>
#include <QCameraDevice>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImageReader>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>

namespace camera {

namespace {

constexpr qint64 longest_silence = 10'000;  // ms; a slow camera needs some seconds for its first picture
constexpr QSize least_size(352, 288);

QString size_name(const QSize& size) {
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

int area(const QCameraFormat& format) {
    return format.resolution().width() * format.resolution().height();
}

// The small ones first, of one size the quick ones; what a device offers in several encodings counts once.
QList<QCameraFormat> formats_of(const QCameraDevice& device) {
    QList<QCameraFormat> formats = device.videoFormats();
    std::ranges::stable_sort(formats, [](const QCameraFormat& left, const QCameraFormat& right) {
        return std::pair(area(left), -left.maxFrameRate()) < std::pair(area(right), -right.maxFrameRate());
    });
    const auto same = [](const QCameraFormat& left, const QCameraFormat& right) {
        return left.resolution() == right.resolution();
    };
    formats.erase(std::unique(formats.begin(), formats.end(), same), formats.end());
    return formats;
}

// A photo needs no more than its own size, and a large picture keeps the workstation busy.
qsizetype smallest_that_serves(const QList<QCameraFormat>& formats) {
    const auto serves = [](const QCameraFormat& format) {
        return format.resolution().expandedTo(least_size) == format.resolution();
    };
    const auto found = std::ranges::find_if(formats, serves);
    return found == formats.end() ? formats.size() - 1 : found - formats.begin();
}

class DeviceCamera : public Camera {
public:
    DeviceCamera() {
        const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
        // Asked for first: without a device the multimedia library delivers a test picture.
        if (devices.isEmpty()) refuse(QStringLiteral("Kamera bulunamadı."));
        capture_.setVideoSink(&sink_);
        QObject::connect(&sink_, &QVideoSink::videoFrameChanged, &sink_, [this] { since_frame_.start(); });
        use(QMediaDevices::defaultVideoInput());
    }

    QImage frame() override {
        if (broken_) refuse(QStringLiteral("Kamera çalışmıyor ya da başka bir program kullanıyor."));
        if (!QMediaDevices::videoInputs().contains(device_)) refuse(QStringLiteral("Kameranın bağlantısı kesildi."));
        if (since_frame_.hasExpired(longest_silence)) refuse(QStringLiteral("Kameradan görüntü gelmiyor."));
        return sink_.videoFrame().toImage();
    }

    Choice devices() const override {
        Choice choice;
        const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
        for (const QCameraDevice& device : devices) choice.names.append(device.description());
        choice.current = devices.indexOf(device_);
        return choice;
    }
    void choose_device(qsizetype chosen) override { use(QMediaDevices::videoInputs().value(chosen, device_)); }

    Choice formats() const override {
        Choice choice{{}, format_};
        for (const QCameraFormat& format : formats_) choice.names.append(size_name(format.resolution()));
        return choice;
    }
    void choose_format(qsizetype chosen) override {
        format_ = chosen;
        start();
    }

private:
    void use(const QCameraDevice& device) {
        device_ = device;
        formats_ = formats_of(device);
        format_ = smallest_that_serves(formats_);
        start();
    }

    void start() {
        camera_ = std::make_unique<QCamera>(device_);
        if (format_ >= 0 && format_ < formats_.size()) camera_->setCameraFormat(formats_[format_]);
        broken_ = false;
        QObject::connect(camera_.get(), &QCamera::errorOccurred, &sink_, [this] { broken_ = true; });
        capture_.setCamera(camera_.get());
        since_frame_.start();
        camera_->start();
    }

    QCameraDevice device_;
    QList<QCameraFormat> formats_;
    qsizetype format_ = -1;  // none where the device names none
    bool broken_ = false;
    QElapsedTimer since_frame_;
    QVideoSink sink_;
    QMediaCaptureSession capture_;
    std::unique_ptr<QCamera> camera_;  // goes before the session that it delivers to
};

class StillCamera : public Camera {
public:
    explicit StillCamera(QString file) : file_(std::move(file)), size_(frame().size()) {}

    QImage frame() override {
        QImageReader reader(paths::native(file_));
        reader.setDecideFormatFromContent(true);
        QImage picture = reader.read();
        if (picture.isNull()) refuse(QStringLiteral("Kamera yerine geçen resim okunamadı: ") + file_);
        return picture;
    }

    Choice devices() const override { return {{QFileInfo(file_).fileName()}, 0}; }
    void choose_device(qsizetype) override {}
    Choice formats() const override { return {{size_name(size_)}, 0}; }
    void choose_format(qsizetype) override {}

private:
    const QString file_;
    const QSize size_;
};

}  // namespace

std::unique_ptr<Camera> open() {
    const QString still = qEnvironmentVariable("KURVO_CAMERA");
    if (!still.isEmpty()) return std::make_unique<StillCamera>(still);
    return std::make_unique<DeviceCamera>();
}

}  // namespace camera
