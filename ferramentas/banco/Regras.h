// What a row that comes from outside must be like, so that it is as the program itself would have stored it.
#pragma once

#include "Esquema.h"

#include <cstdint>
#include <QStringList>
#include <string>
#include <vector>

namespace banco {

/// One field of a row: a text in UTF-8, or no value.
struct Campo {
    std::string texto;
    bool nulo = true;
};
/// In the order of the table's fields.
using Linha = std::vector<Campo>;

/// The rules of one table. Codes, bank numbers and positions that have lost their leading zeros, as in a
/// spreadsheet, get them back, and a missing cheque number or mark of cancellation is one blank; all else
/// stays as it is.
class RegrasDaTabela {
public:
    explicit RegrasDaTabela(const Tabela &tabela);

    /// Mends and checks a row. @return what is wrong with it, in words; empty when nothing is
    QStringList Aplica(Linha &linha);
    /// How many fields have got their zeros back so far.
    [[nodiscard]] std::int64_t Completados() const { return m_completados; }
    /// Place of the key among the fields, and its width in digits.
    [[nodiscard]] std::size_t LugarDaChave() const { return m_chave; }
    [[nodiscard]] std::size_t LarguraDaChave() const { return m_regras[m_chave].largura; }

private:
    enum class Especie : std::uint8_t {
        Texto,
        Codigo,        ///< digits, and never missing
        CodigoDoLog,   ///< the last digits of the key
        NumeroDeBanco, ///< digits with zeros in front; any other text as it is
        Posicao,       ///< a whole number, or nothing
        Valor,         ///< an amount
        Data,          ///< dd/mm/yy
        UmBranco,      ///< one blank where there is nothing
        Cancelado,     ///< a blank or "C"
    };
    struct Regra {
        Especie especie;
        std::size_t largura; ///< in characters
    };

    static Regra RegraDoLog(std::string_view campo);
    static Regra RegraDoCadastro(const Tabela &tabela, std::string_view campo);
    [[nodiscard]] bool Completa(Campo &campo, std::size_t largura);
    [[nodiscard]] QString Confere(const Regra &regra, Campo &campo, const Linha &linha);
    [[nodiscard]] QString ConfereCodigo(const Regra &regra, Campo &campo);
    [[nodiscard]] QString ConfereCodigoDoLog(const Regra &regra, Campo &campo, const Linha &linha);
    [[nodiscard]] QString ConferePosicao(const Regra &regra, Campo &campo);

    const Tabela &m_tabela;
    std::size_t m_chave;
    std::vector<Regra> m_regras;
    std::int64_t m_completados = 0;
};

} // namespace banco
