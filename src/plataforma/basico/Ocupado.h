// Work that blocks the screen.
#pragma once

#include <QString>

namespace plataforma {

/// Brackets work that blocks the screen: the pressed button and the wait cursor are painted at Comeca, and
/// keys and clicks made meanwhile are thrown away at Termina. Calls nest; the outermost pair acts.
class Ocupado {
public:
    virtual ~Ocupado() = default;
    virtual void Comeca() = 0;
    virtual void Termina() = 0;
    /// Says how far the work is, between Comeca and Termina; cheap enough for each step.
    /// @param oQue what is done, such as "Excluindo cheques antigos..."
    virtual void Andamento(const QString &oQue, qint64 feitos, qint64 total)
    {
        Q_UNUSED(oQue)
        Q_UNUSED(feitos)
        Q_UNUSED(total)
    }
};

/// The bracket as an object: a failure that passes through ends the wait too.
class Espera {
public:
    explicit Espera(Ocupado &ocupado) : m_ocupado(ocupado) { m_ocupado.Comeca(); }
    ~Espera() { m_ocupado.Termina(); }
    Espera(const Espera &) = delete;
    Espera &operator=(const Espera &) = delete;

private:
    Ocupado &m_ocupado;
};

} // namespace plataforma
