// A control array: controls of one name, addressed by index, with gaps.
#pragma once

#include "plataforma/basico/RuntimeError.h"

#include <map>
#include <QString>

namespace plataforma {

template <class T> class Arranjo {
public:
    Arranjo() = default;
    explicit Arranjo(QString nome) : m_nome(std::move(nome)) {}

    void Poe(int indice, T *controle)
    {
        controle->setObjectName(QStringLiteral("%1(%2)").arg(m_nome).arg(indice));
        m_controles[indice] = controle;
    }
    /// The control of an index. @throws RuntimeError 9 when the array has a gap there
    [[nodiscard]] T *operator()(int indice) const
    {
        const auto achado = m_controles.find(indice);
        if (achado == m_controles.end())
            throw RuntimeError(ErrSubscript,
                               QStringLiteral("Não existe o controle %1(%2).").arg(m_nome).arg(indice));
        return achado->second;
    }
    [[nodiscard]] bool Tem(int indice) const { return m_controles.count(indice) > 0; }
    [[nodiscard]] auto begin() const { return m_controles.begin(); }
    [[nodiscard]] auto end() const { return m_controles.end(); }

private:
    QString m_nome;
    std::map<int, T *> m_controles;
};

} // namespace plataforma
