// Workbooks that a test writes piece by piece, also such as no spreadsheet would write.
#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

namespace workbook_files {

using Parts = std::vector<std::pair<QByteArray, QByteArray>>;  // name and content

QByteArray package(const Parts& parts, const char* password = nullptr);       // a zip file
QByteArray compound_file(const char* stream_name, const QByteArray& stream);  // with one stream
Parts xlsx(const QByteArray& rows);                                           // the least around these rows
Parts ods(const QByteArray& tables);                                          // the least around these tables

// Little end first.
template <typename... Whole>
QByteArray bytes_of(Whole... wholes) {
    QByteArray bytes;
    (bytes.append(reinterpret_cast<const char*>(&wholes), sizeof(wholes)), ...);
    return bytes;
}
QByteArray record(quint16 id, const QByteArray& content = {});
// An .xls stream of sheets, each of records, the last one active; `globals` stand before the list of sheets.
QByteArray xls(quint16 version, const QByteArray& globals, const std::vector<QByteArray>& sheets);

}  // namespace workbook_files
