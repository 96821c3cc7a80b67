#include "csv.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace csv {
namespace {

[[noreturn]] void refuse(int line, const QString& words) {
    throw std::runtime_error(u"%1. satır: %2"_s.arg(line).arg(words).toStdString());
}

void check_utf8(const QByteArray& text) {
    if (text.isValidUtf8()) return;
    // No byte of a longer letter equals a line end, so each line can be looked at alone.
    const QList<QByteArray> lines = text.split('\n');
    for (int line = 0; line < lines.size(); ++line)
        if (!lines[line].isValidUtf8()) refuse(line + 1, u"UTF-8 olmayan harf."_s);
}

class Reader {
public:
    explicit Reader(const QString& text) : text_(text) {}

    std::vector<Row> rows() {
        std::vector<Row> result;
        while (at_ < text_.size()) result.push_back(row());
        return result;
    }

private:
    Row row() {
        Row result;
        while (true) {
            result.push_back(field());
            if (next() != u',') break;
            ++at_;
        }
        end_line();
        return result;
    }

    Field field() {
        Field result{std::nullopt, line_};
        if (next() == u'"') {
            result.text = quoted();
            return result;
        }
        const qsizetype from = at_;
        while (at_ < text_.size() && !u",\r\n"_s.contains(text_[at_])) {
            if (text_[at_] == u'"') refuse(line_, u"Tırnak, tırnaksız bir alanın içinde."_s);
            ++at_;
        }
        if (at_ > from) result.text = text_.sliced(from, at_ - from);
        return result;
    }

    QString quoted() {
        const int begun = line_;
        QString result;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == u'"') {
                ++at_;
                if (next() != u'"') return result;
            } else if (text_[at_] == u'\n') {
                ++line_;
            }
            result += text_[at_];
        }
        refuse(begun, u"Tırnak kapanmıyor."_s);
    }

    void end_line() {
        if (at_ >= text_.size()) return;
        if (next() == u'\r') ++at_;
        if (next() != u'\n') refuse(line_, u"Alanın ardında virgül ya da satır sonu yok."_s);
        ++at_;
        ++line_;
    }

    QChar next() const { return at_ < text_.size() ? text_[at_] : QChar(); }

    const QString& text_;
    qsizetype at_ = 0;
    int line_ = 1;
};

}  // namespace

std::vector<Row> read(const QByteArray& utf8) {
    check_utf8(utf8);
    const QString text = QString::fromUtf8(utf8);
    return Reader(text).rows();
}

QString written(const std::optional<QString>& text) {
    if (!text) return {};
    const auto needs_quotes = [](QChar letter) { return u",\"\r\n"_s.contains(letter); };
    if (!text->isEmpty() && std::none_of(text->begin(), text->end(), needs_quotes)) return *text;
    QString doubled = *text;
    doubled.replace(u'"', u"\"\""_s);
    return u'"' + doubled + u'"';
}

}  // namespace csv
