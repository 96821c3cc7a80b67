#include "register/photo_capture.h"

#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/slots.h"
#include "platform/text_file.h"
#include "platform/wait_cursor.h"

#include <QActionGroup>
#include <QBuffer>
#include <QDir>

#include <algorithm>

namespace {

constexpr int tick_interval = 100;  // ms
constexpr QSize photo_size(352, 288);

// Only digits, as the box types them: the text becomes part of a file name.
bool holds_number(const QString& text) {
    const QString number = text.trimmed();
    return !number.isEmpty() && std::ranges::all_of(number, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// The middle of the picture, so that no face is squeezed whatever the camera's own shape.
QImage photo_of(const QImage& frame) {
    const QImage scaled = frame.scaled(photo_size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QSize over = (scaled.size() - photo_size) / 2;
    return scaled.copy(QRect(QPoint(over.width(), over.height()), photo_size)).convertToFormat(QImage::Format_RGB32);
}

QByteArray bitmap_of(const QImage& photo) {
    QBuffer bitmap;
    if (photo.isNull() || !photo.save(&bitmap, "BMP")) throw std::runtime_error("Kameradan görüntü gelmedi.");
    return bitmap.data();
}

// Why the step failed; empty where it did not.
template <typename Step>
QString failure(const QString& what, Step step) {
    try {
        step();
        return {};
    } catch (const std::exception& error) {
        return what + QStringLiteral(": ") + QString::fromUtf8(error.what());
    }
}

}  // namespace

PhotoCapture::PhotoCapture(Kurvo& kurvo, SessionContext& session, StudentCard& card)
    : kurvo_(kurvo), session_(session), card_(card) {
    // Each tick starts the next one, so that none overtakes another on a busy workstation.
    Timer1.setObjectName(QStringLiteral("Timer1"));
    Timer1.setSingleShot(true);
    Timer1.setInterval(tick_interval);
    on(&Timer1, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    on(kurvo_.CommandFOTOac, &QPushButton::clicked, this, [this] { CommandFOTOac_Click(); });
    on(kurvo_.CommandFOTOcek, &QPushButton::clicked, this, [this] { CommandFOTOcek_Click(); });
    on(kurvo_.CommandFOTOcik, &QPushButton::clicked, this, [this] { CommandFOTOcik_Click(); });
    on(kurvo_.CommandFOTOayar, &QPushButton::clicked, this, [this] { CommandFOTOayar_Click(); });
    on(kurvo_.CommandFOTOsize, &QPushButton::clicked, this, [this] { CommandFOTOsize_Click(); });
    on(&kurvo_, &Kurvo::closing, this, [this] { StopWork(); });
}

void PhotoCapture::CommandFOTOac_Click() {
    if (camera_ || !holds_number(kurvo_.LONO->text())) return;
    const WaitCursor wait;
    const QString reason = failure(QStringLiteral("Kamera açılamadı"), [this] { camera_ = camera::open(); });
    if (!reason.isEmpty()) return close_camera(reason);
    frame_ = {};
    kurvo_.Image1->setToolTip({});
    set_open(true);
    Timer1.start();
}

void PhotoCapture::Timer1_Timer() {
    QImage frame;
    const QString reason = failure(QStringLiteral("Kamera durdu"), [&] { frame = camera_->frame(); });
    if (!reason.isEmpty()) return close_camera(reason);
    if (!frame.isNull()) {
        frame_ = photo_of(frame);
        card_.show_picture(frame_);
    }
    Timer1.start();
}

void PhotoCapture::CommandFOTOcek_Click() {
    const WaitCursor wait;
    QString reason = failure(QStringLiteral("Fotoğraf kaydedilemedi"), [this] { save_photo(); });
    if (reason.isEmpty())
        reason = failure(QStringLiteral("Fotoğraf öğrencinin kaydına yazılamadı"), [this] { note_photo_of_student(); });
    close_camera(reason);
}

// A second photo of the student in the term replaces the first.
void PhotoCapture::save_photo() {
    // The folder of a new school. Where photos go is said by the launcher and may be another one.
    QDir().mkpath(paths::native(session_.dataRoot + QStringLiteral("foto")));
    const QString name = session_.termCode + u'_' + kurvo_.LONO->text() + QStringLiteral(".bmp");
    text_file::write_bytes(session_.photo_path(name), bitmap_of(frame_));
    session_.photoFile = name;
}

void PhotoCapture::note_photo_of_student() {
    store::Recordset& students = session_.studentTable;
    const store::Value number = numbers::val(kurvo_.LONO->text());
    students.Seek("=", {number});
    if (students.NoMatch()) return;
    students.Edit();
    students["RESIM"] = rich_text::from_plain(session_.photoFile);
    students.Update();
    session_.studentSelected = true;
    students.Seek("=", {number});
}

void PhotoCapture::CommandFOTOcik_Click() {
    close_camera({});
}

void PhotoCapture::StopWork() {
    Timer1.stop();
    camera_.reset();
}

void PhotoCapture::close_camera(const QString& reason) {
    const bool was_open = camera_ != nullptr;
    StopWork();
    card_.foto_goster(session_.photoFile);
    kurvo_.Image1->setToolTip(reason);
    if (was_open) set_open(false);
}

void PhotoCapture::set_open(bool open) {
    open ? kurvo_.kilitle(kurvo_.student_choice()) : kurvo_.kilidi_ac(kurvo_.student_choice());
    if (menu_) menu_->close();
    kurvo_.CommandFOTOac->setEnabled(true);
    for (QPushButton* button :
         {kurvo_.CommandFOTOcek, kurvo_.CommandFOTOayar, kurvo_.CommandFOTOsize, kurvo_.CommandFOTOcik}) {
        // The focus goes on to the next step of a clerk who works by keyboard, not to whatever control follows.
        if (button->hasFocus()) kurvo_.CommandFOTOac->setFocus();
        button->setEnabled(open);
    }
    kurvo_.CommandFOTOac->setDisabled(open);
}

void PhotoCapture::CommandFOTOayar_Click() {
    if (camera_) offer(kurvo_.CommandFOTOayar, camera_->devices(), &camera::Camera::choose_device);
}

void PhotoCapture::CommandFOTOsize_Click() {
    if (camera_) offer(kurvo_.CommandFOTOsize, camera_->formats(), &camera::Camera::choose_format);
}

// A menu under the button; the picture goes on moving behind it.
void PhotoCapture::offer(QPushButton* button, const camera::Choice& choice, Choose choose) {
    menu_ = new QMenu(button);
    menu_->setAttribute(Qt::WA_DeleteOnClose);
    auto* one_of_them = new QActionGroup(menu_);
    for (qsizetype i = 0; i < choice.names.size(); ++i) {
        QAction* action = one_of_them->addAction(choice.names[i]);
        action->setCheckable(true);
        action->setChecked(i == choice.current);
        on(action, &QAction::triggered, this, [this, i, choose] {
            if (camera_) (camera_.get()->*choose)(i);
        });
    }
    if (choice.names.isEmpty()) one_of_them->addAction(QStringLiteral("Seçilecek bir şey yok"))->setEnabled(false);
    menu_->addActions(one_of_them->actions());
    menu_->popup(button->mapToGlobal(button->rect().bottomLeft()));
}
