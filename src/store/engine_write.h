// One write of an engine: begins by waiting for the lock of the file, and is undone unless committed.
#pragma once

#include "store/engine.h"

namespace store {

class EngineWrite {
public:
    explicit EngineWrite(Engine& engine) : engine_(engine) { engine_.begin({}, Engine::Wait::now); }
    ~EngineWrite() {
        if (engine_.in_transaction()) engine_.rollback();
    }
    EngineWrite(const EngineWrite&) = delete;
    EngineWrite& operator=(const EngineWrite&) = delete;

    void commit() { engine_.commit({}); }

private:
    Engine& engine_;
};

}  // namespace store
