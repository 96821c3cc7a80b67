// Pictures from files that people have put somewhere.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// The picture of a file that the office names, decoded within `space` pixels in its own proportions, whatever its
// ending says; a null image for what is no picture. Throws as paths::native does.
QImage picture_within(const QString& name, const QSize& space);
