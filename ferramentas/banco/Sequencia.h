// The numbers of the log in the order of its rows: repeats, gaps and numbers that go back.
#pragma once

#include <functional>
#include <QtGlobal>
#include <vector>

namespace banco {

/// Keeps runs of numbers, not numbers: a log without gaps is one run, however long it is.
class Sequencia {
public:
    /// The number of one row. Positions count from 1 and grow. @return whether it is lower than the one
    /// before
    bool Junta(qint64 numero, qint64 posicao);
    /// The number joined last, 0 before the first.
    [[nodiscard]] qint64 Ultimo() const { return m_ultimo; }

    /// Each row whose number another row has too: the number, the position of that other row, its own.
    using Repetido = std::function<void(qint64 numero, qint64 antes, qint64 posicao)>;
    /// Numbers that no row has between two that are there, and the position of the row below them.
    using Falta = std::function<void(qint64 primeiro, qint64 ultimo, qint64 posicao)>;
    /// Tells repeats and gaps, from the lowest number on.
    void Percorre(const Repetido &repetido, const Falta &falta) const;

private:
    struct Trecho {
        qint64 primeiro; // number of its first row
        qint64 posicao;  // of its first row
        qint64 quantos;  // rows; number and position grow by one
        [[nodiscard]] qint64 Ultimo() const { return primeiro + quantos - 1; }
        [[nodiscard]] qint64 PosicaoDe(qint64 numero) const { return posicao + (numero - primeiro); }
    };
    std::vector<Trecho> m_trechos;
    qint64 m_ultimo = 0;
};

} // namespace banco
