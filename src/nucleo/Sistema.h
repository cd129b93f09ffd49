// What all screens share: settings, store, device link, message boxes, clock, and the shared variables.
#pragma once

#include "nucleo/Armazem.h"
#include "nucleo/Indicador.h"
#include "nucleo/QX_INI.h"

#include <array>
#include <cstdint>
#include <QString>

namespace device {
class Impressora;
}

namespace nucleo {

class Relogio;

/// Built once in main, and anew by each test in a folder of its own. The shared variables carry their given
/// names.
class Sistema {
public:
    Sistema(const QString &caminhoApp, Mensagens &mensagens, Ocupado &ocupado, const Relogio &relogio,
            device::Impressora &impressora);

    const QString CaminhoApp;
    const QString ArquivoIni;
    const QString ArquivoDados;

    Mensagens &mensagens;
    Ocupado &ocupado;
    const Relogio &relogio;
    device::Impressora &impressora;
    const QX_INI ini;
    Armazem armazem;

    QString PortaSerial;
    QString DataHoje;   ///< "ddmmyy"
    QString MesAnoHoje; ///< "mmyy"
    QString JanelaConfigurador = QStringLiteral("0");
    std::int16_t ValidaCampos = 1;
    std::int16_t FechaTela = 0;
    std::int16_t TipoPesquisa = 0;
    QString TextoPesquisa;
    QString NomeListagem;
    /// The adjustment buffer: a register fills it before it opens its graphic screen. Lines and columns of a
    /// layout from 1 on, so that `L1` stands at 0.
    std::array<QString, 8> AjusteL;
    std::array<QString, 11> AjusteC;
    QString ValorExtenso;
    QString MesExtenso;
    QString ComentarioLinha1, ComentarioLinha2, ComentarioLinha3;
    double TotalCheques = 0;

    int PeriodoRelExc = 30; ///< days
    int PeriodoCopExc = 30; ///< days
    int UsarImpInv = 1;
    int NumCObrig = 1;
    int NumChkPgRel = 55; ///< cheques a page
};

/// A numeric setting of section `Opcoes`: the number that it reads as, or `padrao` when the key is missing.
/// One too large is the largest there is.
int OpcaoNumerica(const QX_INI &ini, const QString &chave, int padrao);

/// A numeric option: its key in section `Opcoes`, and the variable that holds it. Its default is the value
/// that the variable has from the beginning.
struct Opcao {
    QString chave;
    int Sistema::*variavel;
};
inline const Opcao kPeriodoRelExc{QStringLiteral("PeriodoRelExc"), &Sistema::PeriodoRelExc};
inline const Opcao kPeriodoCopExc{QStringLiteral("PeriodoCopExc"), &Sistema::PeriodoCopExc};
inline const Opcao kUsarImpInv{QStringLiteral("UsarImpInv"), &Sistema::UsarImpInv};
inline const Opcao kNumCObrig{QStringLiteral("NumCObrig"), &Sistema::NumCObrig};
inline const Opcao kNumChkPgRel{QStringLiteral("NumChkPgRel"), &Sistema::NumChkPgRel};
/// Takes a stored option into its variable.
void CarregaOpcao(Sistema &sistema, const Opcao &opcao);

/// `InRel`: whether the box starts ticked; a missing key or any value that does not read as 0 is written as
/// "1".
bool CarregaInRel(const QX_INI &ini);
/// `port`: its first four characters; "COM2", written to the file, when they read as a negative number.
QString CarregaPorta(const QX_INI &ini);
/// Today as "ddmmyy".
QString DataDeHoje(const Relogio &relogio);

} // namespace nucleo
