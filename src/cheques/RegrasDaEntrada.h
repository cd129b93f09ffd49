// Rules of the entry of a normal cheque: limits, what leaving a field does, the check before any use.
#pragma once

#include <array>
#include <optional>
#include <QDate>
#include <QString>
#include <QStringList>

namespace cheques {

/// Control names of the entry: Text1 has the indices 0 to 4 and 6.
enum CampoDoCheque : int {
    CampoBanco = 0,
    CampoValor = 1,
    CampoFavorecido = 2,
    CampoCidade = 3,
    CampoData = 4,
    CampoNumero = 6
};
inline constexpr std::array<int, 6> kCamposDoCheque = {CampoBanco,  CampoValor, CampoFavorecido,
                                                       CampoCidade, CampoData,  CampoNumero};
inline constexpr int kCamposExtras = 3;
inline constexpr int kLinhasDoVerso = 10;
inline constexpr int kLimiteDaLinha = 80;

/// The texts of the cheque on the screen.
struct TextosDoCheque {
    QString banco, valor, favorecido, cidade, data, numero;
    std::array<QString, kLinhasDoVerso> linhas; ///< Text2
};

/// Most characters a field of Text1 may hold; 0 for none.
int LimiteDoCampo(int indice);
/// The text that the length rule leaves of an over-long text in Text1, nothing when it is not over-long.
std::optional<QString> CortaCampo(int indice, const QString &texto);
/// The same for a line of Text2.
std::optional<QString> CortaLinha(const QString &texto);

/// What leaving `Text1(0)` makes of its text: empty when it is no number above 0, else three digits or more.
QString BancoAoSair(const QString &texto);
/// What leaving `Text1(1)` makes of its text; nothing when it is not numeric: the field is emptied and keeps
/// the focus.
std::optional<QString> ValorAoSair(const QString &texto);

struct DataAoSair {
    QString texto;       ///< what the field shows then; an invalid date is emptied once it has been told
    bool valida = false; ///< false: it is told, and the field keeps the focus
    bool hoje = false;   ///< the field was empty and took today: the focus goes to the cheque number
};
/// What leaving `Text1(4)` makes of its text.
DataAoSair DataDoChequeAoSair(const QString &texto, const QDate &hoje);

/// A refusal: what to say (nothing when it is silent) and the index of the field that takes the focus.
struct Recusa {
    QString texto;
    int campo = 0;
};
/// The check before any use of the cheque; nothing when it passes.
std::optional<Recusa> VerificaCamposDoCheque(const TextosDoCheque &cheque, bool numeroObrigatorio);

/// Where Enter in `Text1(indice)` goes: an index of Text1, or kVaiParaImprimir.
inline constexpr int kVaiParaImprimir = -1;
int ProximoCampo(int indice);

/// Key of section `FrenteInfo` under which F4 saves `Text1(indice)`; empty when it has none.
QString ChaveDoCampo(int indice);
/// Keys of `TxtCpo(indice)` ("Campo00") and of `Text2(indice)` ("Linha00").
QString ChaveDoExtra(int indice);
QString ChaveDoVerso(int indice);

} // namespace cheques
