#include "toolkit/Probe.h"

#include <cassert>

namespace {

Probe* current = nullptr;

} // namespace

Probe::Probe()
{
    assert(current == nullptr && "one probe at a time");
    current = this;
}

Probe::~Probe() { current = nullptr; }

Probe* Probe::Current() { return current; }
