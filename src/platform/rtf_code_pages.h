// The code pages of RTF documents as letters by byte.
#pragma once

#include <QChar>

namespace rtf {

// 256 letters; those of code page 1254 where the number is unknown on this machine.
const QChar* letters_of_code_page(int code_page);

// The code page of a font's character set; `document_page` for the sets that name none.
int code_page_of_charset(int charset, int document_page);

}  // namespace rtf
