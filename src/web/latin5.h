// The Turkish single-byte set in which texts go to the remote directory and come back from its server.
#pragma once

#include <QByteArray>
#include <QString>

namespace latin5 {

// ISO 8859-9. A letter without a place there goes as the sign or the bare letter that comes nearest (’ as ', ā as a),
// any other as a question mark: a name that reads a little differently serves the web better than none, and the
// student's own row keeps the name as it was typed.
QByteArray encode(QStringView text);

// What a server of that set says.
QString decode(QByteArrayView bytes);

}  // namespace latin5
