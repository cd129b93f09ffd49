// See Sistema.h.
#include "nucleo/Sistema.h"

#include "nucleo/Relogio.h"
#include "plataforma/basico/Dir.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <cmath>

namespace nucleo {

namespace {
constexpr double kMaiorOpcao = 2147483647;
const QString kSistema = QStringLiteral("Sistema");

// The settings file under whatever case its name has on disk.
QString CaminhoDoIni(const QString &pasta)
{
    const QString achado = plataforma::FirstFile(pasta + QStringLiteral("/QX70.ini"));
    return pasta + QLatin1Char('/') + (achado.isEmpty() ? QStringLiteral("QX70.INI") : achado);
}
} // namespace

Sistema::Sistema(const QString &caminhoApp, Mensagens &aMensagens, Ocupado &oOcupado, const Relogio &oRelogio,
                 device::Impressora &aImpressora)
    : CaminhoApp(caminhoApp), ArquivoIni(CaminhoDoIni(caminhoApp)), ArquivoDados(QStringLiteral("QX70.MDB")),
      mensagens(aMensagens), ocupado(oOcupado), relogio(oRelogio), impressora(aImpressora), ini(ArquivoIni),
      armazem(caminhoApp, ArquivoDados, aMensagens)
{
}

int OpcaoNumerica(const QX_INI &ini, const QString &chave, int padrao)
{
    const QString lido = ini.GravaIni(kOpcoes, chave);
    if (lido == kAusente)
        return padrao;
    const double valor = std::nearbyint(plataforma::Val(lido)); // a half goes to the even number
    return static_cast<int>(std::clamp(valor, -kMaiorOpcao, kMaiorOpcao));
}

void CarregaOpcao(Sistema &sistema, const Opcao &opcao)
{
    int &variavel = sistema.*opcao.variavel;
    variavel = OpcaoNumerica(sistema.ini, opcao.chave, variavel);
}

bool CarregaInRel(const QX_INI &ini)
{
    const QString chave = QStringLiteral("InRel");
    if (plataforma::Val(ini.GravaIni(kSistema, chave)) == 0)
        return false;
    ini.GravaIni(kSistema, chave, QStringLiteral("1"));
    return true;
}

QString CarregaPorta(const QX_INI &ini)
{
    const QString chave = QStringLiteral("port");
    QString porta = plataforma::Left(ini.GravaIni(kSistema, chave), 4);
    if (plataforma::Val(porta) < 0) {
        porta = QStringLiteral("COM2");
        ini.GravaIni(kSistema, chave, porta);
    }
    return porta;
}

QString DataDeHoje(const Relogio &relogio)
{
    return relogio.Hoje().toString(QStringLiteral("ddMMyy"));
}

} // namespace nucleo
