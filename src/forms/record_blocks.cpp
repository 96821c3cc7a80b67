#include "forms/record_blocks.h"

#include "forms/kurvo_yeni.h"
#include "forms/record_fields.h"
#include "forms/record_layout.h"

#include <QGridLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int caption_width = 132;
constexpr int inner_caption_width = 84;  // of a second control in its row

QLabel* caption_label(const QString& text, const QString& control) {
    auto* label = new QLabel(text);
    label->setObjectName(u"caption_"_s + control);
    label->setProperty("caption", true);
    return label;
}

QLabel* heading_label(const QString& text) {
    auto* label = new QLabel(text);
    label->setProperty("heading", true);
    return label;
}

const RecordField* field_with(const QString& control) {
    for (const RecordField& field : record_fields())
        if (control == QLatin1String(field.control)) return &field;
    return nullptr;
}

QString caption_of(const QString& control) {
    const RecordField* field = field_with(control);
    return field == nullptr ? QString() : field->caption;
}

// Most captions of the first column begin with a blank; those without one stand in line with them.
QLabel* first_caption(const QString& control) {
    QLabel* label = caption_label(caption_of(control), control);
    if (!label->text().startsWith(u' ')) label->setIndent(label->fontMetrics().horizontalAdvance(u' '));
    return label;
}

QGridLayout* block_grid(QWidget* block, const QString& heading) {
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->setColumnMinimumWidth(0, caption_width);
    grid->addWidget(heading_label(heading), 0, 0, 1, -1);
    return grid;
}

}  // namespace

std::vector<QWidget*> RecordBlocks::build() {
    build_column_blocks();
    build_family();
    return std::move(reading_order_);
}

void RecordBlocks::build_column_blocks() {
    std::map<record_layout::Column, QVBoxLayout*> columns;
    for (auto [column, widget] : {std::pair(record_layout::Column::identity, form_.identity_column),
                                  std::pair(record_layout::Column::papers, form_.papers_column)}) {
        columns[column] = new QVBoxLayout(widget);
        columns[column]->setContentsMargins(0, 0, 0, 0);
        columns[column]->setSpacing(16);
    }
    for (const record_layout::Block& block : record_layout::blocks()) {
        auto* frame = new QWidget;
        QGridLayout* grid = block_grid(frame, block.heading);
        int row = 1;
        for (const QStringList& names : block.rows) {
            grid->addWidget(first_caption(names.first()), row, 0);
            auto* line = new QHBoxLayout;
            line->setSpacing(8);
            add_controls(*line, names);
            grid->addLayout(line, row++, 1);
        }
        grid->setColumnStretch(1, 1);
        columns[block.column]->addWidget(frame);
    }
    for (auto& [column, layout] : columns) layout->addStretch(1);
}

// Two controls of a row share its width evenly, so that rows of two stand under each other; a text that goes on behind
// another control without a caption takes more.
void RecordBlocks::add_controls(QBoxLayout& line, const QStringList& names) {
    QString caption = caption_of(names.first());
    for (const QString& name : names) {
        const bool has_own_caption = caption_of(name) != caption && !caption_of(name).isEmpty();
        if (has_own_caption) {
            QLabel* label = caption_label(caption_of(name).trimmed(), name);
            if (names.size() == 2) label->setMinimumWidth(inner_caption_width);
            line.addWidget(label);
        }
        if (!caption_of(name).isEmpty()) caption = caption_of(name);
        QWidget* const placed = control(name);
        const bool goes_on = name != names.first() && !has_own_caption && qobject_cast<QLineEdit*>(placed) != nullptr;
        const bool is_field = qobject_cast<QAbstractButton*>(placed) == nullptr;
        line.addWidget(placed, !is_field ? 0 : goes_on ? 3 : 2);
        if (!has_own_caption && is_field) placed->setAccessibleName(caption.trimmed());
        reading_order_.push_back(placed);
    }
}

void RecordBlocks::build_family() {
    QGridLayout* grid = block_grid(form_.family_place, u"AİLE  BİLGİLERİ"_s);
    grid->addWidget(caption_label(u"Annesi"_s, u"anne"_s), 1, 1);
    grid->addWidget(caption_label(u"Babası"_s, u"baba"_s), 1, 2);
    int row = 2;
    for (const QStringList& names : record_layout::family_rows()) {
        grid->addWidget(caption_label(caption_of(names[0]), names[0]), row, 0);
        for (int parent = 0; parent < 2; ++parent) {
            grid->addWidget(control(names[parent]), row, parent + 1);
            control(names[parent])
                ->setAccessibleName((parent == 0 ? u"Annesi"_s : u"Babası"_s) + caption_of(names[parent]));
        }
        ++row;
    }
    for (int parent = 0; parent < 2; ++parent)
        for (const QStringList& names : record_layout::family_rows()) reading_order_.push_back(control(names[parent]));
    auto* last = new QHBoxLayout;
    last->setSpacing(16);
    form_.KRDSAY->setMaximumWidth(60);
    grid->addWidget(caption_label(caption_of(u"KRDSAY"_s), u"KRDSAY"_s), row, 0);
    for (QWidget* widget : std::initializer_list<QWidget*>{form_.KRDSAY, form_.AYRI, form_.SAVBEL}) {
        last->addWidget(widget);
        reading_order_.push_back(widget);
    }
    last->addStretch(1);
    grid->addLayout(last, row, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
}
