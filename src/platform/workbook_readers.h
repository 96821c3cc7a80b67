// The readers of the workbook formats. Each gives the active sheet and throws the refusals of
// workbook_sheet.h.
#pragma once

#include "platform/workbook_sheet.h"

#include <QByteArray>

namespace workbook {

class Package;

// By the first bytes of a file.
bool is_package(const QByteArray& file);        // a zip file
bool is_compound_file(const QByteArray& file);  // holds .xls, or an encrypted workbook
bool is_cell_records(const QByteArray& file);   // .xls without a compound file around it

bool is_xlsx(const Package& package);
Table read_xlsx(Package& package);
bool is_ods(const Package& package);
Table read_ods(Package& package);
Table read_compound_file(const QString& native_file);
Table read_cell_records(const QString& native_file);
// UTF-8, UTF-16 or code page 1254, separated by tabs, semicolons or commas, as the content shows.
Table read_csv(const QByteArray& file);

}  // namespace workbook
