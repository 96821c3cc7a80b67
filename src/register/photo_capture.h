// The photograph of the student on the card, taken with the webcam of the workstation.
#pragma once

#include "forms/kurvo.h"
#include "platform/camera.h"
#include "register/student_card.h"
#include "session/context.h"

#include <QImage>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QTimer>

// While the camera is open Image1 shows its picture and the student cannot be changed. Nothing is ever said in a
// message: why there is no camera or no photo stands in the tooltip of Image1.
class PhotoCapture : public QObject {
    Q_OBJECT

public:
    PhotoCapture(Kurvo& kurvo, SessionContext& session, StudentCard& card);

    // Lets go of the camera, also when the form closes; does nothing while none is open. The form stays as it is.
    void StopWork();

private:
    void CommandFOTOac_Click();
    void CommandFOTOcek_Click();
    void CommandFOTOcik_Click();
    void CommandFOTOayar_Click();
    void CommandFOTOsize_Click();
    void Timer1_Timer();

    void save_photo();
    void note_photo_of_student();
    void close_camera(const QString& reason);
    using Choose = void (camera::Camera::*)(qsizetype);
    void offer(QPushButton* button, const camera::Choice& choice, Choose choose);
    void set_open(bool open);

    Kurvo& kurvo_;
    SessionContext& session_;
    StudentCard& card_;
    QTimer Timer1{this};
    std::unique_ptr<camera::Camera> camera_;  // none while closed
    QImage frame_;                            // what Image1 shows of the camera, as it will be saved
    QPointer<QMenu> menu_;
};
