// A walk through the forms: a table of steps, each with the picture that it leaves.
#pragma once

#include "clerk.h"

#include <QSize>

#include <functional>
#include <memory>
#include <vector>

namespace screens {

inline const QSize small{1366, 768};
inline const QSize large{1920, 1080};

}  // namespace screens

struct Step {
    QString name;              // of the picture: "ogrenci-numarayla"
    std::vector<QSize> sizes;  // of the window, one picture each; the last one stays. Empty: no picture
    std::function<void()> act;
};
using Walk = std::vector<Step>;

// Makes the acts of steps from the routines of one actor, who lives as long as they do.
template <typename Actor>
auto steps_of(std::shared_ptr<Actor> actor) {
    return [actor](void (Actor::*act)()) { return [actor, act] { (*actor.*act)(); }; };
}

// Does the steps in order. Says each file that was written, or which step did not show what it must; false then,
// with a picture of what it showed.
bool go(const Walk& walk, Clerk& clerk);

// The walks, each in a file of its own and declared here; main does them one after the other on one school.
Walk collection_walk(Clerk& clerk);
Walk record_form_walk(Clerk& clerk);
Walk invoice_walk(Clerk& clerk);
Walk renumbering_walk(Clerk& clerk);
Walk day_walk(Clerk& clerk);
Walk student_file_walk(Clerk& clerk);
Walk newcomers_walk(Clerk& clerk);
