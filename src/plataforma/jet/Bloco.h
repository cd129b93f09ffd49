// A handful of rows read at one time and kept as the engine gave them; texts are made when asked for.
#pragma once

#include "Chave.h"
#include <QString>
#include <string>
#include <vector>

namespace plataforma::jet {

class Comando;

/// Where a row stands in its set.
struct Lugar {
    Chave chave;
    qsizetype indice = -1; ///< in a listed set; -1 in a set walked by key
};

class Bloco {
public:
    void Esvazia(qsizetype colunas);
    /// Adds the statement's current row, whose values begin at `primeiraColuna`.
    void Junta(const Comando &comando, int primeiraColuna, const Lugar &lugar);
    /// Turns the order of the rows round.
    void Inverte();
    /// Puts the values of the only row of `outro` in the place of a row's.
    void Troca(qsizetype linha, const Bloco &outro, const Lugar &lugar);

    [[nodiscard]] qsizetype Linhas() const { return static_cast<qsizetype>(m_lugares.size()); }
    /// Whether the rows are so large that no more should be read ahead.
    [[nodiscard]] bool Cheio() const { return m_bytes.size() > MAIOR_TAMANHO; }
    [[nodiscard]] const Lugar &LugarDe(qsizetype linha) const
    {
        return m_lugares[static_cast<std::size_t>(linha)];
    }
    /// A null text stands for NULL.
    [[nodiscard]] QString Texto(qsizetype linha, qsizetype coluna) const;

private:
    static constexpr std::size_t MAIOR_TAMANHO = 1 << 20;
    struct Celula {
        std::size_t inicio = 0;
        std::size_t tamanho = 0;
        bool nula = true;
    };
    [[nodiscard]] std::size_t IndiceDe(qsizetype linha, qsizetype coluna) const
    {
        return static_cast<std::size_t>(linha * m_colunas + coluna);
    }

    qsizetype m_colunas = 0;
    std::string m_bytes;
    std::vector<Celula> m_celulas;
    std::vector<Lugar> m_lugares;
};

} // namespace plataforma::jet
