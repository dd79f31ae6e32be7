/// What is to happen at the end of a scope.
#pragma once

#include <utility>

/// Does `act` at the end of its scope, in whatever way that ends: an exception is no reason to stay locked.
template <class Act>
class AtEnd {
public:
    explicit AtEnd(Act act)
        : act_(std::move(act))
    {
    }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;
    ~AtEnd() { act_(); }

private:
    Act act_;
};
