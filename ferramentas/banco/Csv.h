// Reading and writing lines of fields: separator, quotes doubled inside quotes, line breaks kept inside them.
#pragma once

#include "Codificacao.h"

#include <array>
#include <cstdint>
#include <functional>
#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace banco {

enum class ErroCsv {
    Nenhum,
    AspasNaoFechadas, ///< nothing more is read behind it
    AspasNoMeio,
    TextoDepoisDasAspas,
    LinhaVazia,
    Nulo,
    CrSolto,
    LongoDemais,
};

/// What is wrong, in words.
QString TextoDoErro(ErroCsv erro);

struct CampoCsv {
    std::string_view texto; ///< as the file has it, in its encoding, without quotes around
    bool entreAspas = false;
};

struct RegistroCsv {
    std::int64_t linha = 0; ///< the line of the file in which it begins, counted from 1
    ErroCsv erro = ErroCsv::Nenhum;
    std::vector<CampoCsv> campos; ///< valid until the next is read; of no use behind an error
};

/// Reads records one after the other, with bounded memory. Lines end in CR LF or LF. A wholly empty last line
/// is none; any other empty line is an error, as are quotes inside a field that does not begin with them.
class LeitorCsv {
public:
    /// Fills at most so many bytes and tells how many; 0 at the end.
    using Fonte = std::function<std::size_t(char *, std::size_t)>;
    static constexpr std::size_t kMaiorRegistro = std::size_t{1} << 20; ///< in bytes

    LeitorCsv(Fonte fonte, char separador);
    /// Reads the next record, a faulty one too: reading goes on in the line behind it. @return false at the
    /// end
    bool Le(RegistroCsv &registro);

private:
    enum class Passo { Inteiro, FaltaDado, FaltaAspas, Acabou, Errado };

    Passo Varre(RegistroCsv &registro);
    Passo VarreEntreAspas(RegistroCsv &registro);
    Passo VarreSemAspas(RegistroCsv &registro);
    Passo Separa(RegistroCsv &registro, bool &maisUm);
    Passo TerminaComCr(RegistroCsv &registro);
    Passo Erra(RegistroCsv &registro, ErroCsv erro);
    Passo Confirma(RegistroCsv &registro);
    void DesistePorTamanho(RegistroCsv &registro, Passo passo);
    void SaltaLinha();
    bool Enche();
    void DesdobraAspas(std::string_view &texto);

    Fonte m_fonte;
    char m_separador;
    std::array<bool, 256> m_para{}; ///< the bytes that end a field without quotes
    std::vector<char> m_bloco;
    std::size_t m_inicio = 0; ///< of the record being read
    std::size_t m_p = 0;      ///< how far it has been looked at
    std::size_t m_fim = 0;    ///< of what the source gave
    std::vector<std::size_t> m_comDobradas;
    std::int64_t m_linha = 1;
    std::int64_t m_quebras = 0; ///< line breaks inside the quotes of this record
    bool m_acabou = false;
    bool m_parado = false;
};

/// Writes the fields of the store in one of the two encodings.
class EscritorCsv {
public:
    enum class Falha {
        Nenhuma,
        ForaDaPagina, ///< a character that Windows-1252 lacks
        Nulo,
    };

    EscritorCsv(char separador, Codificacao codificacao);
    /// Adds one field, in quotes where reading it back needs them: an empty text is `""`, no value is
    /// nothing. Blanks at either end are put in quotes too, for readers that would drop them.
    [[nodiscard]] Falha Poe(std::string &saida, std::string_view texto) const;
    [[nodiscard]] char Separador() const { return m_separador; }

private:
    Falha PoeEspecial(std::string &saida, std::string_view texto, unsigned classes) const;

    char m_separador;
    Codificacao m_codificacao;
    std::array<std::uint8_t, 256> m_classes{};
};

} // namespace banco
