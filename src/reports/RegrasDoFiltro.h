// Rules of the filter's fields: limits, what leaving a field does, where Enter goes.
#pragma once

#include <optional>
#include <QDate>
#include <QString>

namespace reports {

/// Indices of Text1 on the filter.
enum CampoDoFiltro : int {
    FiltroBanco = 0,
    FiltroDataIni = 1,
    FiltroDataFim = 2,
    FiltroValorIni = 3,
    FiltroValorFim = 4,
    FiltroFavor = 5,
    FiltroLocal = 6,
    FiltroComentario = 7
};
inline constexpr int kCamposDoFiltro = 8;

/// What is told to the operator; an empty title is the program's own.
struct AvisoDoFiltro {
    QString texto, titulo;
};

/// What a text that grew over the field's limit is cut to, nothing when it did not; the cut is told with
/// kCampoCheio.
std::optional<QString> CortaCampoDoFiltro(int indice, const QString &texto);
inline const AvisoDoFiltro kCampoCheio{QStringLiteral("Tamanho Máximo deste campo..."),
                                       QStringLiteral("Erro")};

/// The code that the bank field shows and that is looked up once it is left; nothing when there is none to
/// look up: the field stays as it is. A code that is not found is told with kBancoInvalido, and the field
/// keeps the focus.
std::optional<QString> BancoDoFiltroAoSair(const QString &texto);
inline const AvisoDoFiltro kBancoInvalido{QStringLiteral("Banco Inválido..."), QStringLiteral("Erro")};

/// What leaving a field makes of it. With a warning the field keeps text and focus.
struct CampoAoSair {
    QString texto;
    std::optional<AvisoDoFiltro> aviso;

    [[nodiscard]] bool FicaNoCampo() const { return aviso.has_value(); }
};
/// Fields 1 and 2. Up to two characters are a day of the month of `hoje`.
CampoAoSair DataDoFiltroAoSair(const QString &texto, const QDate &hoje);
/// Fields 3 and 4.
CampoAoSair ValorDoFiltroAoSair(const QString &texto);

/// Where Enter in `Text1(indice)` goes: an index of Text1, or kAceitaOFiltro.
/// On purpose: from the last field to an index that does not exist.
inline constexpr int kAceitaOFiltro = -1;
int ProximoCampoDoFiltro(int indice);

} // namespace reports
