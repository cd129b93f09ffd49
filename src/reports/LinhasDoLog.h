// The cheques that the list of the log shows: copied out of the store and totalled at one go, made into lines
// when they are shown.
#pragma once

#include "plataforma/jet/Rows.h"

#include <QString>
#include <vector>

namespace plataforma {
class Dynaset;
}

namespace reports {

/// Nothing of the store stays open. A row whose value is no number cannot be shown nor totalled: it is left
/// out, and told. One whose date is no date stays in, as it is stored, and is told too.
class LinhasDoLog {
public:
    /// Copies the rows of a set on `Log`, in its order.
    /// @throws RuntimeError 3265 a field is missing; 3050, 3051, 3343 as any reading
    explicit LinhasDoLog(const plataforma::Dynaset &log);

    [[nodiscard]] int Quantas() const { return static_cast<int>(m_linhas.Count() - m_semValor.size()); }
    /// The list line of a number from 0.
    [[nodiscard]] QString Linha(int numero) const;
    /// Sum of the cheques that are not cancelled.
    [[nodiscard]] double Total() const { return m_total; }
    /// Whether the set has rows, readable or not.
    [[nodiscard]] bool TemRegistros() const { return m_linhas.Count() > 0; }
    /// Names the rows that cannot be read, for the operator; empty when all can.
    [[nodiscard]] QString Aviso() const;

private:
    void Percorre();

    plataforma::Rows m_linhas;
    std::vector<qsizetype> m_semValor; // rows that are left out
    std::vector<qsizetype> m_semData;
    double m_total = 0;
};

} // namespace reports
