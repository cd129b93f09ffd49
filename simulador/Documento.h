// A document as it leaves the device: a cheque with its placed texts, or a sheet of free lines. A value, no
// drawing.
#pragma once

#include <array>
#include <QByteArray>
#include <QString>
#include <vector>

namespace simulador {

inline constexpr int kColunas = 120; ///< columns of the cheque form, counted from 1
inline constexpr int kLinhas = 20;   ///< lines of the cheque form, counted from 1

enum class Campo { Valor, Extenso1, Extenso2, Favorecido, Cidade, Dia, Mes, Ano, Extra };
inline constexpr int kCamposDoBanco = 8; ///< the fields before Extra, which a bank's layout places

/// The name of a field as the detail file shows it: "valor", "extenso1", ...
QString NomeDoCampo(Campo campo);

struct Lugar {
    int linha = 1;
    int coluna = 1;
    bool operator==(const Lugar &) const = default;
};

/// A text printed on the form from `lugar` on.
struct TextoPosto {
    Campo campo = Campo::Extra;
    Lugar lugar;
    QString texto;
    bool operator==(const TextoPosto &) const = default;
};

/// What the blank form has in print before the device writes on it.
struct Formulario {
    QString banco; ///< three digits
    QString nomeDoBanco;
    std::array<Lugar, kCamposDoBanco> lugares; ///< by Campo, inside the form
    QString prefixoDoAno;                      ///< "", "20" or "199", left of the year's place
    bool operator==(const Formulario &) const = default;
};

/// A line of a sheet, in the order received.
struct LinhaDeFolha {
    QString texto;
    int largura = 80;       ///< columns of the sheet in this line's pitch: 80, 96 or 136
    bool enfase = false;    ///< printed twice, bolder
    bool invertida = false; ///< printed upside down
    bool operator==(const LinhaDeFolha &) const = default;
};

struct Documento {
    enum class Tipo { Cheque, Folha };
    Tipo tipo = Tipo::Folha;
    Formulario formulario;            ///< of a cheque
    std::vector<TextoPosto> textos;   ///< of a cheque
    std::vector<LinhaDeFolha> linhas; ///< of a sheet
    bool operator==(const Documento &) const = default;
};

/// "cheque" or "folha", as in the names of the files.
QString NomeDoTipo(const Documento &documento);
/// What is printed, as text: a cheque is 20 lines of exactly 120 characters, a sheet its lines as received.
/// Each line ends in LF.
QString Grade(const Documento &documento);
/// The document in detail, as JSON in UTF-8: each text of a cheque with its field, line and column, each line
/// of a sheet with its width, emphasis and direction.
QByteArray Detalhe(const Documento &documento);

} // namespace simulador
