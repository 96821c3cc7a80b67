// A function in place of one that asks the machine or its user.
#pragma once

#include <functional>
#include <utility>

// Put in for as long as the object lives (tests); the one before it comes back then. `Asked` names what is asked and
// keeps those of one signature apart.
template <typename Asked, typename Signature>
class Override {
public:
    explicit Override(std::function<Signature> substitute) : before_(std::exchange(current(), std::move(substitute))) {}
    ~Override() { current() = std::move(before_); }
    Override(const Override&) = delete;
    Override& operator=(const Override&) = delete;

    // Empty while the machine or its user is asked.
    static std::function<Signature>& current() {
        static std::function<Signature> substitute;
        return substitute;
    }

private:
    std::function<Signature> before_;
};
