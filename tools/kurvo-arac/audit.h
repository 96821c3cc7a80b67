// Looks a school over: what is wrong in its files, and what the office's ways have left in them.
#pragma once

#include <QString>

#include <vector>

namespace audit {

struct Finding {
    bool fault;     // else a notice
    QString place;  // "2026ogr.mdb, Odeme, ONO 1250, VADE 20261001"
    QString words;
};

// Looks at a copy of all databases under `root` that is of one moment, so that a school at work shows no half of a
// posting and no workstation waits. Throws std::runtime_error, in Turkish, where no school lies there.
std::vector<Finding> look_over(const QString& root);

}  // namespace audit
