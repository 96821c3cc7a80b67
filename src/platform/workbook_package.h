// The zip package of .xlsx and .ods and the XML of its parts, read so that no file can ask for more than a workstation
// should give.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

#include <memory>

struct zip;

namespace workbook {

// Names of parts are found without regard to case.
class Package {
public:
    explicit Package(const QByteArray& file);  // must outlive the package; throws damaged()

    bool has(const QString& part) const;
    // Unpacks while it is read. Throws damaged() where the part is missing, encrypted() where it asks for a password.
    std::unique_ptr<QIODevice> open(const QString& part);

private:
    struct Close {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Close> archive_;
};

// Goes through the elements of a part. Throws damaged() for what is no well-formed XML, declares a document type (and
// so could declare entities) or nests too deep, and too_large() for an endless piece of text.
class XmlPart {
public:
    XmlPart(Package& package, const QString& part);
    ~XmlPart();

    bool next();  // to the next token; false at the end of the part
    bool starts() const { return xml_.isStartElement(); }
    bool ends() const { return xml_.isEndElement(); }
    // The local name of the element, whatever prefix the writer chose.
    QStringView name() const { return xml_.name(); }
    bool is(QStringView local_name) const { return xml_.name() == local_name; }
    // Of the attribute with this local name; empty without one.
    QString attribute(QStringView local_name) const { return attribute_view(local_name).toString(); }
    // The same without a copy, good until the next token.
    QStringView attribute_view(QStringView local_name) const;

    // To the next child of the element on which the reader stands, passing over texts; false at the element's end. A
    // child must have been read to its own end, as skip() and the loops over its children do.
    bool next_child();
    void skip();     // to the end of the element
    QString text();  // of the element and all within, to its end
    QStringView characters() const { return xml_.isCharacters() ? xml_.text() : QStringView(); }

private:
    std::unique_ptr<QIODevice> source_;
    QXmlStreamReader xml_;
    int depth_ = 0;
};

}  // namespace workbook
