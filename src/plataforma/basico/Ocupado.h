// Work that blocks the screen.
#pragma once

namespace plataforma {

/// Brackets work that blocks the screen: the pressed button and the wait cursor are painted at Comeca, and
/// keys and clicks made meanwhile are thrown away at Termina. Calls nest; the outermost pair acts.
class Ocupado {
public:
    virtual ~Ocupado() = default;
    virtual void Comeca() = 0;
    virtual void Termina() = 0;
};

} // namespace plataforma
