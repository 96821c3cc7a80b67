// How the record form's blocks are laid out: a caption and its controls a row.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace record_layout {

enum class Column { identity, papers };

struct Block {
    Column column;
    QString heading;
    // The controls of each row. The first one's caption stands at the left edge, a later one's between them unless it
    // is the same.
    std::vector<QStringList> rows;
};

const std::vector<Block>& blocks();
// Mother's and father's control of each row of the family block.
const std::vector<QStringList>& family_rows();

}  // namespace record_layout
