// Rows copied out of a set at one go: some of its fields, kept compactly.
#pragma once

#include <cstring>
#include <QByteArray>
#include <QString>
#include <string_view>
#include <vector>

namespace plataforma {

/// A copy that no later change of the store touches. Rows and columns are counted from 0.
class Rows {
public:
    explicit Rows(int colunas = 0) : m_colunas(colunas) {}

    [[nodiscard]] qsizetype Count() const { return static_cast<qsizetype>(m_inicios.size()); }
    /// Value of a column of a row; a NULL is a null text. @throws RuntimeError 9 outside
    [[nodiscard]] QString Text(qsizetype linha, int coluna) const;
    /// Its bytes as they are stored, without an address for a NULL; they live as long as this.
    /// @throws RuntimeError 9 outside
    [[nodiscard]] std::string_view Bytes(qsizetype linha, int coluna) const
    {
        if (linha < 0 || linha >= Count() || coluna < 0 || coluna >= m_colunas)
            LancaFora(linha, coluna);
        const char *p = m_bytes.constData() + m_inicios[static_cast<std::size_t>(linha)];
        for (; coluna > 0; --coluna)
            p = Valor(p).fim;
        return Valor(p).bytes;
    }

    /// The bytes of all columns of a row, one after the other. @throws RuntimeError 9 outside
    template <class F> void EachOf(qsizetype linha, F &&toma) const
    {
        if (linha < 0 || linha >= Count())
            LancaFora(linha, 0);
        const char *p = m_bytes.constData() + m_inicios[static_cast<std::size_t>(linha)];
        for (int coluna = 0; coluna < m_colunas; ++coluna) {
            const ValorLido valor = Valor(p);
            toma(coluna, valor.bytes);
            p = valor.fim;
        }
    }

    /// Adds the next value, row by row and column by column; bytes without an address are NULL.
    void Add(std::string_view bytes)
    {
        if (m_proxima == 0)
            m_inicios.push_back(m_usados);
        m_proxima = m_proxima + 1 < m_colunas ? m_proxima + 1 : 0;
        const auto tamanho = static_cast<qsizetype>(bytes.size());
        if (m_usados + tamanho + kMaiorPrefixo > m_bytes.size())
            Cresce(tamanho);
        char *p = m_bytes.data() + m_usados;
        p = PoePrefixo(p, bytes);
        if (tamanho > 0)
            std::memcpy(p, bytes.data(), bytes.size());
        m_usados = p + tamanho - m_bytes.constData();
    }

private:
    // Each value stands behind its length: a byte, or one that says that it is NULL or that eight follow.
    static constexpr unsigned char kNulo = 255;
    static constexpr unsigned char kLongo = 254;
    static constexpr qsizetype kMaiorPrefixo = 1 + sizeof(qsizetype);
    struct ValorLido {
        std::string_view bytes;
        const char *fim;
    };

    static char *PoePrefixo(char *p, std::string_view bytes)
    {
        const std::size_t tamanho = bytes.size();
        const bool nulo = bytes.data() == nullptr;
        *p++ = static_cast<char>(nulo ? kNulo : tamanho < kLongo ? tamanho : kLongo);
        if (nulo || tamanho < kLongo)
            return p;
        std::memcpy(p, &tamanho, sizeof tamanho);
        return p + sizeof tamanho;
    }
    static ValorLido Valor(const char *p)
    {
        const auto prefixo = static_cast<unsigned char>(*p++);
        if (prefixo == kNulo)
            return {{}, p};
        std::size_t tamanho = prefixo;
        if (prefixo == kLongo) {
            std::memcpy(&tamanho, p, sizeof tamanho);
            p += sizeof tamanho;
        }
        return {{p, tamanho}, p + tamanho};
    }
    void Cresce(qsizetype tamanho);
    [[noreturn]] static void LancaFora(qsizetype linha, int coluna);

    int m_colunas;
    int m_proxima = 0;                // column of the next value
    QByteArray m_bytes;               // as the engine gave them; a text is made when it is asked for
    qsizetype m_usados = 0;           // of these bytes; those behind are room
    std::vector<qsizetype> m_inicios; // where each row begins
};

} // namespace plataforma
