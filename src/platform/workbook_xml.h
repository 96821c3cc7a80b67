// The XML of a package's parts. It reads views of what was unpacked: the elements and short values of a sheet outnumber
// by far the texts that somebody will see.
#pragma once

#include "platform/workbook_package.h"
#include "platform/workbook_xml_text.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace workbook {

// Goes through the elements of a part. Throws damaged() for what is no well-formed XML, declares a document type (and
// so could declare entities) or nests too deep, and too_large() for an endless piece of text. Names are local: whatever
// prefix the writer chose.
class XmlPart {
public:
    XmlPart(Package& package, const QString& part) : part_(package.open(part)) {}

    bool next();  // to the next token; false at the end of the part
    bool starts() const { return token_ == Token::start; }
    bool ends() const { return token_ == Token::end; }
    bool is(std::string_view name) const { return name_ == name; }  // of the element that starts or ends here
    // Empty without such an attribute.
    QString attribute(std::string_view name) const;
    // The same as it was written, references and all. Good until the next token.
    std::string_view written(std::string_view attribute) const;
    // What stands here between two elements.
    QString characters() const;

    // To the next child of the element on which the reader stands, passing over texts; false at the element's end. A
    // child must have been read to its own end, as skip() and the loops over its children do.
    bool next_child();
    void skip();  // to the end of the element
    // UTF-8 of the element and all within, to its end. Good until the next call. Of more than a cell can hold, the
    // beginning.
    std::string_view text();

private:
    enum class Token { none, start, end, letters, raw_letters };
    struct Attribute {
        std::string_view name, value;
    };

    bool finish();
    void read_letters();
    void read_raw_letters();
    bool read_mark();
    void read_start();
    void read_end();
    void end_element();
    void read_attributes(std::string_view rest);
    void read_declaration(std::string_view declaration);

    bool begins_with(std::string_view sign);
    std::size_t end_of_tag();
    std::size_t end_of(std::string_view sign);
    std::string_view take(std::size_t bytes);

    Part part_;
    Token token_ = Token::none;
    std::string_view name_, letters_;
    std::vector<Attribute> attributes_;
    std::vector<std::string> open_;  // the written names of the elements around, of which the first depth_ count
    std::size_t depth_ = 0;
    bool had_root_ = false, ends_at_once_ = false;
    std::string text_;
};

}  // namespace workbook
