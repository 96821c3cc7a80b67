#include "platform/picture_file.h"

#include "platform/paths.h"

#include <QImageReader>

QImage picture_within(const QString& name, const QSize& space) {
    QImageReader reader(paths::native(name));
    reader.setDecideFormatFromContent(true);
    if (reader.size().isValid())
        reader.setScaledSize(reader.size().scaled(space, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}
