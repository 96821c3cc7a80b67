// Numbers that are the same on every machine for the same seed; the standard distributions are not.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace sample {

class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    // Another row of numbers for each student and each kind of thing, so that one does not move the other.
    Random split(std::uint64_t what) const {
        Random other(state_ ^ (what * 0xd1342543de82ef95U));
        other.next();
        return other;
    }

    std::uint64_t next() {
        std::uint64_t mixed = (state_ += 0x9e3779b97f4a7c15U);
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
        return mixed ^ (mixed >> 31);
    }

    // 0 to limit - 1; limit above 0.
    int below(int limit) { return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(limit)) >> 32); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool chance(int percent) { return below(100) < percent; }
    const QString& pick(const QStringList& list) { return list.at(below(static_cast<int>(list.size()))); }
    QString digits(int count) {
        QString text;
        while (count-- > 0) text += QChar(u'0' + below(10));
        return text;
    }

private:
    std::uint64_t state_;
};

}  // namespace sample
