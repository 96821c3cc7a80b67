// Lays the record form's controls out in its blocks: a heading, then a caption and its controls a row.
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

class KurvoYeni;
class QBoxLayout;
class QWidget;

// For one form, whose columns are empty and whose controls exist already, each in `controls` under its name.
class RecordBlocks {
public:
    RecordBlocks(KurvoYeni& form, const std::map<QString, QWidget*>& controls) : form_(form), controls_(controls) {}

    // Returns the controls in the order in which a clerk reads them.
    std::vector<QWidget*> build();

private:
    void build_column_blocks();
    void build_family();
    void add_controls(QBoxLayout& line, const QStringList& names);
    QWidget* control(const QString& name) const { return controls_.at(name); }

    KurvoYeni& form_;
    const std::map<QString, QWidget*>& controls_;
    std::vector<QWidget*> reading_order_;
};
