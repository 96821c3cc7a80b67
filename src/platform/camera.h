// The webcam of the workstation: opened, asked for its latest picture, and closed when the object goes.
//
// With $KURVO_CAMERA=FILE the picture in that file (a name as in paths.h) stands in for a camera: each frame reads it
// anew, and a file that is missing or no picture is a camera that fails.
#pragma once

#include <QImage>
#include <QStringList>

#include <memory>

namespace camera {

// What of a camera can be chosen, for the eye, and which of it is in use; -1 where that is not known.
struct Choice {
    QStringList names;
    qsizetype current = -1;
};

class Camera {
public:
    Camera() = default;
    virtual ~Camera() = default;
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    // The latest picture as the device gives it; a null image while none has come yet. Throws std::runtime_error with a
    // Turkish reason once the camera has failed: it broke down, was pulled out, or has been silent for too long.
    virtual QImage frame() = 0;

    // `chosen` is a position in the names. A choice starts the camera anew.
    virtual Choice devices() const = 0;
    virtual void choose_device(qsizetype chosen) = 0;
    virtual Choice formats() const = 0;
    virtual void choose_format(qsizetype chosen) = 0;
};

// Starts the system's default camera. Throws std::runtime_error with a Turkish reason where there is none.
std::unique_ptr<Camera> open();

}  // namespace camera
