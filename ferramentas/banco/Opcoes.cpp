// The options of "semeia", read from the words of the call.
#include "Opcoes.h"

#include "plataforma/basico/Data.h"

#include <array>
#include <QRegularExpression>

namespace banco {

namespace {

struct OpcaoNumerica {
    const char *nome;
    qint64 OpcoesDeSemeia::*valor;
    qint64 maximo;
};

constexpr std::array kNumericas{OpcaoNumerica{"--bancos", &OpcoesDeSemeia::bancos, 999},
                                OpcaoNumerica{"--cidades", &OpcoesDeSemeia::cidades, 99'999},
                                OpcaoNumerica{"--favorecidos", &OpcoesDeSemeia::favorecidos, 99'999},
                                OpcaoNumerica{"--cheques", &OpcoesDeSemeia::cheques, 10'000'000},
                                OpcaoNumerica{"--semente", &OpcoesDeSemeia::semente, 4'294'967'295}};

QString LeNumero(const OpcaoNumerica &opcao, const QString &texto, OpcoesDeSemeia &opcoes)
{
    static const QRegularExpression kDigitos(QStringLiteral("\\A[0-9]{1,10}\\z"));
    const qint64 valor = kDigitos.match(texto).hasMatch() ? texto.toLongLong() : -1;
    if (valor < 0 || valor > opcao.maximo)
        return QStringLiteral("%1 pede um número de 0 a %2, não \"%3\".")
            .arg(QLatin1String(opcao.nome), QString::number(opcao.maximo), texto);
    opcoes.*opcao.valor = valor;
    return {};
}

QString LeHoje(const QString &texto, OpcoesDeSemeia &opcoes)
{
    static const QRegularExpression kData(QStringLiteral("\\A[0-9]{2}/[0-9]{2}/[0-9]{2}\\z"));
    if (!kData.match(texto).hasMatch() || !plataforma::IsDate(texto))
        return QStringLiteral("--hoje pede uma data na forma dd/mm/aa, não \"%1\".").arg(texto);
    opcoes.hoje = plataforma::CVDate(texto);
    return {};
}

QString LeOpcao(const QString &nome, const QString &texto, OpcoesDeSemeia &opcoes)
{
    if (nome == QLatin1String("--hoje"))
        return LeHoje(texto, opcoes);
    for (const OpcaoNumerica &opcao : kNumericas) {
        if (nome == QLatin1String(opcao.nome))
            return LeNumero(opcao, texto, opcoes);
    }
    return QStringLiteral("\"semeia\" não conhece a opção \"%1\".").arg(nome);
}

} // namespace

QString LeOpcoes(const QStringList &palavras, OpcoesDeSemeia &opcoes)
{
    for (qsizetype i = 0; i < palavras.size(); ++i) {
        const QString &palavra = palavras[i];
        if (!palavra.startsWith(QLatin1String("--"))) {
            if (palavra.isEmpty() || !opcoes.pasta.isEmpty())
                return QStringLiteral("\"semeia\" pede uma pasta só; \"%1\" sobra.").arg(palavra);
            opcoes.pasta = palavra;
            continue;
        }
        // A missing value reads as an empty one, which no option takes.
        const QString recusa = LeOpcao(palavra, palavras.value(++i), opcoes);
        if (!recusa.isEmpty())
            return recusa;
    }
    return opcoes.pasta.isEmpty() ? QStringLiteral("\"semeia\" pede a pasta do banco de dados.") : QString();
}

} // namespace banco
