// What a check found: defects and notices, kept by kind, so that a thousand of one kind do not hide another.
#pragma once

#include <array>
#include <cstdint>
#include <QString>
#include <QStringList>
#include <string_view>

namespace banco {

/// Whether a text holds nothing but digits; an empty one does.
bool SoDigitos(std::string_view texto);

/// The kinds, in the order in which they are told.
enum class Tipo : std::uint8_t {
    Arquivo,       ///< the file is no store, or is damaged
    Tabela,        ///< table or field missing
    AMais,         ///< table or field that the program does not know
    SemIndice,     ///< looking rows up is slow
    NaoConferida,  ///< rows that could not be looked at
    IndexInvalido, ///< Index that is not ten digits
    IndexRepetido,
    IndexForaDeOrdem, ///< lower than the one before
    NumerosPerdidos,  ///< gap in the sequence of Index
    NumeracaoRecomeca,
    CodigoDoCheque,
    DataDoCheque,
    ValorDoCheque,
    CanceladoDoCheque,
    CodigoVazio,
    CodigoRepetido,
    Configuracoes,  ///< the settings file is missing
    SemChave,       ///< bank without its layout in the settings file
    ChaveInvalida,  ///< layout that cannot be read
    ChaveDiferente, ///< layout that differs from the row
    ChaveDesligada, ///< layout of the transfer cheques that differs from the row, which the program allows
    ChaveSemBanco,  ///< layout of a bank that is gone
    Fim
};

class Achados {
public:
    /// @param tudo keeps every line, and not only the first kLinhasPorTipo of a kind
    explicit Achados(bool tudo) : m_tudo(tudo) {}
    static constexpr qint64 kLinhasPorTipo = 20;

    /// Counts one of a kind. `texto` is a function that makes the line; it is called only when the line is
    /// told.
    template <typename F> void Junta(Tipo tipo, F texto)
    {
        Achado &achado = m_achados[static_cast<std::size_t>(tipo)];
        if (++achado.quantos <= kLinhasPorTipo || m_tudo)
            achado.linhas.append(texto());
    }
    /// The lines, kind by kind, the defects before the notices, each with "Defeito: " or "Aviso: " before it.
    [[nodiscard]] QStringList Linhas() const;
    [[nodiscard]] qint64 Defeitos() const { return Conta(false); }
    [[nodiscard]] qint64 Avisos() const { return Conta(true); }

private:
    struct Achado {
        qint64 quantos = 0;
        QStringList linhas;
    };
    static QStringList LinhasDe(const Achado &achado, const QString &comeco);
    [[nodiscard]] qint64 Conta(bool avisos) const;

    bool m_tudo;
    std::array<Achado, static_cast<std::size_t>(Tipo::Fim)> m_achados;
};

/// "1 linha", "2 linhas".
QString Quantos(qint64 numero, const char *um, const char *varios);
/// A value between quotes, cut when it is long; "(sem valor)" for a null text.
QString Citado(const QString &valor);

} // namespace banco
