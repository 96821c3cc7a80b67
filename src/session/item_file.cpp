#include "session/item_file.h"

#include "platform/refusal.h"

#include <QRegularExpression>

#include <algorithm>

void refuse_line(const QString& name, int line, const QString& why) {
    refuse(QStringLiteral("%1 hatalı, %2. satır: %3").arg(name).arg(line).arg(why));
}

// Empty lines that an editor left at the end are no values.
ItemFile::ItemFile(QString name) : name_(std::move(name)), items_(text_file::read_items_with_lines(name_)) {
    while (!items_.empty() && items_.back().of_empty_line) items_.pop_back();
}

void ItemFile::refuse(int line, const QString& why) const {
    refuse_line(name_, line, why);
}

const QString& ItemFile::at(int number, const QString& what) const {
    const auto index = static_cast<std::size_t>(number - 1);
    if (index >= items_.size())
        refuse(line_of(number),
               QStringLiteral("%1. değer (%2) eksik; dosyada %3 değer var.").arg(number).arg(what).arg(items_.size()));
    return items_[index].text;
}

QString ItemFile::number_at(int number, const QString& what, double most) const {
    static const QRegularExpression form(QStringLiteral("^[+-]?[0-9]+(\\.[0-9]+)?$"));
    const QString text = at(number, what).trimmed();
    if (text.isEmpty()) return QStringLiteral("0");
    const double value = text.toDouble();
    if (!form.match(text).hasMatch() || value < 0 || value > most)
        refuse(line_of(number), QStringLiteral("%1. değer (%2) 0 ile %3 arasında bir sayı olmalı, \"%4\" yazılmış.")
                                    .arg(QString::number(number), what, QString::number(most), text));
    return text;
}

int ItemFile::switch_at(int number, const QString& what) const {
    const double value = number_at(number, what, 1).toDouble();
    if (value != 0 && value != 1)
        refuse(line_of(number), QStringLiteral("%1. değer (%2) 0 ya da 1 olmalı.").arg(number).arg(what));
    return static_cast<int>(value);
}

int ItemFile::size() const {
    std::size_t size = items_.size();
    while (size > 0 && items_[size - 1].text.isEmpty()) --size;
    return static_cast<int>(size);
}

int ItemFile::line_of(int number) const {
    if (items_.empty()) return 1;
    return items_[std::min(static_cast<std::size_t>(number), items_.size()) - 1].line;
}
