// Key of a stored row: its row number, or the values of the primary key in a table without row numbers.
#pragma once

#include <QByteArray>
#include <QList>
#include <tuple>
#include <vector>

namespace plataforma::jet {

/// One value as the engine keeps it.
struct Valor {
    int tipo = 5; ///< SQLITE_INTEGER 1, SQLITE_FLOAT 2, SQLITE_TEXT 3, SQLITE_BLOB 4, SQLITE_NULL 5
    qint64 inteiro = 0;
    double real = 0;
    QByteArray bytes;
    bool operator==(const Valor &) const = default;
    bool operator<(const Valor &outro) const
    {
        return std::tie(tipo, inteiro, real, bytes) <
               std::tie(outro.tipo, outro.inteiro, outro.real, outro.bytes);
    }
};

struct Chave {
    qint64 numero = 0;    ///< row number
    QList<Valor> valores; ///< the primary key; empty in a table with row numbers
    bool operator==(const Chave &) const = default;
    /// Any order that is always the same, for searching.
    bool operator<(const Chave &outra) const
    {
        return numero != outra.numero ? numero < outra.numero : valores < outra.valores;
    }
};

/// Keys of many rows: 8 bytes each where rows have numbers.
class ListaDeChaves {
public:
    [[nodiscard]] qsizetype Tamanho() const
    {
        return static_cast<qsizetype>(m_valores.empty() ? m_numeros.size() : m_valores.size());
    }
    [[nodiscard]] Chave Em(qsizetype i) const
    {
        const auto n = static_cast<std::size_t>(i);
        return m_valores.empty() ? Chave{m_numeros[n], {}} : Chave{0, m_valores[n]};
    }
    void Junta(const Chave &chave)
    {
        if (chave.valores.isEmpty())
            m_numeros.push_back(chave.numero);
        else
            m_valores.push_back(chave.valores);
    }
    void Troca(qsizetype i, const Chave &chave)
    {
        const auto n = static_cast<std::size_t>(i);
        if (m_valores.empty())
            m_numeros[n] = chave.numero;
        else
            m_valores[n] = chave.valores;
    }

private:
    std::vector<qint64> m_numeros;
    std::vector<QList<Valor>> m_valores;
};

} // namespace plataforma::jet
