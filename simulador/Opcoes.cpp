// Reading the command line.
#include "Opcoes.h"

#include <functional>
#include <map>
#include <QDir>

namespace simulador {

QString TextoDeAjuda()
{
    QString falhas;
    for (const NomeDeFalha &nome : NomesDeFalhas())
        falhas += QStringLiteral("                          %1 %2\n").arg(nome.nome, -16).arg(nome.rotulo);
    return QStringLiteral(
               "Uso: qx70-simulador --saida PASTA [opções]\n"
               "\n"
               "Faz as vezes de uma QX-70: recebe por um pseudoterminal o que o programa envia\n"
               "e põe cada documento impresso na pasta, como texto, PNG e PDF.\n"
               "\n"
               "  --saida PASTA           pasta dos documentos (criada se não existir)\n"
               "  --memoria ARQUIVO       memória da impressora (sem ela: memoria.json na pasta)\n"
               "  --elo CAMINHO           elo simbólico para a porta, refeito a cada porta nova\n"
               "  --formatos QX70.INI     carrega na memória os leiautes da seção Formato\n"
               "  --janela                mostra a janela; o documento se insere na fenda\n"
               "  --automatico            com a janela: há sempre um documento na fenda\n"
               "  --espera-documento MS   quanto a fenda espera pelo documento (8000)\n"
               "  --velocidade            mantém a velocidade real da linha, 960 bytes por segundo\n"
               "  --falha NOME[:N]        falha nos próximos N documentos, ou até mudar:\n"
               "%1"
               "  --demora MS             quanto demora a resposta lenta (5000)\n"
               "  --bytes ARQUIVO         acrescenta ao arquivo cada byte recebido\n"
               "  --comandos              lê comandos da entrada, um por linha:\n"
               "                          falha NOME[:N], documento, sair\n"
               "  --documentos N          termina depois de N documentos\n"
               "  --sem-figuras           só texto, sem PNG nem PDF\n"
               "  --ajuda                 mostra esta ajuda\n")
        .arg(falhas);
}

namespace {

using Tomador = std::function<bool(Opcoes &, const QString &)>;

Tomador Texto(QString Opcoes::*campo)
{
    return [campo](Opcoes &opcoes, const QString &valor) {
        opcoes.*campo = valor;
        return !valor.isEmpty();
    };
}

Tomador Numero(int Opcoes::*campo, int minimo, int maximo)
{
    return [campo, minimo, maximo](Opcoes &opcoes, const QString &valor) {
        bool lido = false;
        opcoes.*campo = valor.toInt(&lido);
        return lido && opcoes.*campo >= minimo && opcoes.*campo <= maximo;
    };
}

bool TomaFalha(Opcoes &opcoes, const QString &valor)
{
    const auto falha = LeFalha(valor);
    opcoes.falha = falha.value_or(Falha{});
    return falha.has_value();
}

const std::map<QString, Tomador> &ComValor()
{
    static const std::map<QString, Tomador> opcoes = {
        {"--saida", Texto(&Opcoes::saida)},
        {"--memoria", Texto(&Opcoes::memoria)},
        {"--elo", Texto(&Opcoes::elo)},
        {"--formatos", Texto(&Opcoes::formatos)},
        {"--bytes", Texto(&Opcoes::bytes)},
        {"--falha", TomaFalha},
        {"--demora", Numero(&Opcoes::demoraMs, 0, 3600000)},
        {"--espera-documento", Numero(&Opcoes::esperaDocumentoMs, 0, 3600000)},
        {"--documentos", Numero(&Opcoes::documentos, 1, 1000000)},
    };
    return opcoes;
}

const std::map<QString, std::pair<bool Opcoes::*, bool>> &SemValor()
{
    static const std::map<QString, std::pair<bool Opcoes::*, bool>> opcoes = {
        {"--janela", {&Opcoes::janela, true}},         {"--automatico", {&Opcoes::automatico, true}},
        {"--velocidade", {&Opcoes::velocidade, true}}, {"--comandos", {&Opcoes::comandos, true}},
        {"--sem-figuras", {&Opcoes::figuras, false}},
    };
    return opcoes;
}

/// Takes the option at the front of the list off it, with its value. @returns what is wrong with it, or
/// nothing
QString TomaOpcao(QStringList &argumentos, Opcoes &opcoes)
{
    QString nome = argumentos.takeFirst();
    QString valor;
    const qsizetype igual = nome.indexOf(QLatin1Char('='));
    const bool colado = igual > 0;
    if (colado) {
        valor = nome.mid(igual + 1);
        nome.truncate(igual);
    }
    const auto semValor = SemValor().find(nome);
    if (semValor != SemValor().end() && !colado) {
        opcoes.*(semValor->second.first) = semValor->second.second;
        return {};
    }
    const auto comValor = ComValor().find(nome);
    if (comValor == ComValor().end())
        return QStringLiteral("A opção %1 não existe.").arg(nome);
    if (!colado && argumentos.isEmpty())
        return QStringLiteral("Falta o valor da opção %1.").arg(nome);
    if (!colado)
        valor = argumentos.takeFirst();
    return comValor->second(opcoes, valor)
               ? QString()
               : QStringLiteral("O valor \"%1\" não serve para a opção %2.").arg(valor, nome);
}

} // namespace

std::variant<Opcoes, OpcaoErrada, SoTexto> LeOpcoes(const QStringList &argumentos)
{
    if (argumentos.contains(QStringLiteral("--ajuda")))
        return SoTexto{TextoDeAjuda()};
    Opcoes opcoes;
    QStringList restantes = argumentos;
    while (!restantes.isEmpty()) {
        const QString erro = TomaOpcao(restantes, opcoes);
        if (!erro.isEmpty())
            return OpcaoErrada{erro};
    }
    if (opcoes.saida.isEmpty())
        return OpcaoErrada{QStringLiteral("Falta a opção --saida PASTA.")};
    if (opcoes.memoria.isEmpty())
        opcoes.memoria = QDir(opcoes.saida).filePath(QStringLiteral("memoria.json"));
    return opcoes;
}

} // namespace simulador
