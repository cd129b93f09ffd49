// See RegrasDaConfiguracao.h.
#include "device/RegrasDaConfiguracao.h"

#include "device/Acentos.h"
#include "device/Fluxos.h"
#include "device/Impressora.h"
#include "nucleo/Mensagens.h"
#include "nucleo/QX_INI.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

namespace device {

using namespace nucleo;
using namespace plataforma;

namespace {

const QString kSistema = QStringLiteral("Sistema");
const QString kSingular = QStringLiteral("m_sg");
const QString kPlural = QStringLiteral("m_pl");

const QString kTituloDaMoeda = QStringLiteral("Alteração da Moeda");
const QString kTituloDaInclusao = QStringLiteral("Cadastro de Favorecido");
// On purpose: the refused check says "Favorecidos", what the device answered "Favorecido".
const QString kTituloDaExclusao = QStringLiteral("Exclusão de Favorecido");
const QString kTituloDaExclusaoRecusada = QStringLiteral("Exclusão de Favorecidos");

/// Refuses the first empty one of two boxes. Only emptiness counts: a blank is a text.
std::optional<Recusa> RecusaVazio(const std::array<QString, 2> &campos, const QString &titulo,
                                  const std::array<QString, 2> &textos)
{
    for (std::size_t i = 0; i < campos.size(); ++i)
        if (campos.at(i).isEmpty())
            return Recusa{textos.at(i), titulo, static_cast<int>(i)};
    return std::nullopt;
}

QString Titulo(Envio envio)
{
    switch (envio) {
    case Envio::Inclusao:
        return kTituloDaInclusao;
    case Envio::Exclusao:
        return kTituloDaExclusao;
    case Envio::Moeda:
        break;
    }
    return kTituloDaMoeda;
}

QString TextoDoErro(Envio envio)
{
    switch (envio) {
    case Envio::Inclusao:
        return QStringLiteral("Erro no cadastro do favorecido.");
    case Envio::Exclusao:
        return QStringLiteral("Erro na exclusão do favorecido.");
    case Envio::Moeda:
        break;
    }
    return QStringLiteral("Erro na alteração da moeda.");
}

// A name of nothing but blanks is not stored: the one that is there stays, and the device judges the empty
// one.
void GravaNome(const QX_INI &ini, const QString &chave, const QString &nome)
{
    if (!nome.isEmpty())
        ini.GravaIni(kSistema, chave, nome);
}

int AlteraMoeda(const TextosDaConfiguracao &textos, Sistema &sistema)
{
    const QString singular = Trim(textos.moeda[0]);
    const QString plural = Trim(textos.moeda[1]);
    GravaNome(sistema.ini, kSingular, singular);
    GravaNome(sistema.ini, kPlural, plural);
    return sistema.impressora.AlteraMoeda(RemoveAcentos(singular), RemoveAcentos(plural));
}

int Executa(Envio envio, const TextosDaConfiguracao &textos, Sistema &sistema)
{
    switch (envio) {
    case Envio::Inclusao:
        return sistema.impressora.IncluiFavorecido(
            textos.favorecido[0], RemoveAcentos(Trim(Mid(textos.favorecido[1], 1, kTamanhoDoNome))));
    case Envio::Exclusao:
        return sistema.impressora.ExcluiFavorecido(textos.exclusao);
    case Envio::Moeda:
        break;
    }
    return AlteraMoeda(textos, sistema);
}

} // namespace

QString CodigoAoSair(const QString &texto)
{
    return IsNumeric(texto) ? Format(CDbl(texto), QStringLiteral("00")) : QString();
}

std::optional<Recusa> VerificaMoeda(const TextosDaConfiguracao &textos)
{
    return RecusaVazio(textos.moeda, kTituloDaMoeda,
                       {QStringLiteral("O nome da moeda no singular não pode ser vazio."),
                        QStringLiteral("O nome da moeda no plural não pode ser vazio.")});
}

std::optional<Recusa> VerificaInclusao(const TextosDaConfiguracao &textos)
{
    return RecusaVazio(textos.favorecido, kTituloDaInclusao,
                       {QStringLiteral("O código do favorecido não pode ser vazio."),
                        QStringLiteral("O nome do favorecido não pode ser vazio.")});
}

std::optional<Recusa> VerificaExclusao(const TextosDaConfiguracao &textos, bool todos)
{
    if (!textos.exclusao.isEmpty() || todos)
        return std::nullopt;
    return Recusa{QStringLiteral("O código do favorecido não pode ser vazio ou a opção 'Todos' deve estar "
                                 "assinalada."),
                  kTituloDaExclusaoRecusada, 0};
}

std::array<QString, 2> CarregaMoeda(const QX_INI &ini)
{
    std::array<QString, 2> moeda;
    moeda[0] = ini.GravaIni(kSistema, kSingular);
    if (moeda[0] == kAusente) {
        moeda[0] = QStringLiteral("Real");
        ini.GravaIni(kSistema, kSingular, moeda[0]);
    }
    moeda[1] = ini.GravaIni(kSistema, kPlural);
    if (moeda[1] == kAusente) {
        // On purpose: the word goes to the box of the singular, and that of the plural stays empty.
        moeda = {QStringLiteral("Reais"), QString()};
        ini.GravaIni(kSistema, kPlural, moeda[0]);
    }
    return moeda;
}

int OpcaoDaPorta(const QString &porta)
{
    int opcao = 0;
    while (opcao < kPortas - 1 && porta != PortaDaOpcao(opcao))
        ++opcao;
    return opcao;
}

QString PortaDaOpcao(int opcao)
{
    return QStringLiteral("COM%1").arg(opcao + 1);
}

void GravaPorta(const QX_INI &ini, const QString &porta)
{
    ini.GravaIni(kSistema, QStringLiteral("port"), porta);
}

void EnviaConfiguracao(Envio envio, const TextosDaConfiguracao &textos, Sistema &sistema)
{
    const QString titulo = Titulo(envio);
    // On purpose: the operation is attempted on the closed port too, and tells its own failure.
    if (sistema.impressora.IniciaPorta(sistema.PortaSerial) == kPortaFechada)
        sistema.mensagens.MsgBox(kErroDeComunicacao, Botoes::Ok, Icone::Pare, titulo);
    if (Executa(envio, textos, sistema) == 1)
        sistema.mensagens.MsgBox(QStringLiteral("Os dados foram enviados para a impressora."), Botoes::Ok,
                                 Icone::Informacao, titulo);
    else
        sistema.mensagens.MsgBox(TextoDoErro(envio), Botoes::Ok, Icone::Pare, titulo);
    sistema.impressora.FechaPorta();
}

QString TextoDoAutoTeste(const QString &porta)
{
    struct Linha {
        int recuo;
        QString texto;
        int quebras;
    };
    const std::array<Linha, 9> linhas = {{
        {35, QStringLiteral("AUTO - TESTE"), 2},
        {27, QStringLiteral("Impressora de Cheques - QX70 Mira"), 3},
        {35, kFabricante, 1},
        {31, QStringLiteral("Indústria Brasileira"), 3},
        {27, QStringLiteral("Rua Fictícia do Exemplo, 000"), 1},
        {20, QStringLiteral("CEP 00000-000 - Bairro Modelo - Exemplópolis"), 1},
        {24, QStringLiteral("Fone (00) 0000-0000 - Fax (00) 0000-0001"), 1},
        {28, QStringLiteral("CNPJ 00.000.000/0000-00"), 3},
        {20, QStringLiteral("Comunicação OK - Impressora instalada na ") + porta, 1},
    }};
    QString texto;
    for (const Linha &linha : linhas)
        texto += Space(linha.recuo) + linha.texto + QString(linha.quebras, QLatin1Char('\n'));
    return texto;
}

} // namespace device
