// The options of "exporta" and "importa", read from the words of the call.
#include "OpcoesCsv.h"

#include "Esquema.h"

#include <algorithm>
#include <array>

namespace banco {

namespace {

QString LeTabela(const QString &texto, OpcoesCsv &opcoes)
{
    const Tabela *const tabela = AchaTabela(texto);
    if (!tabela)
        return QStringLiteral("--tabela pede uma destas: %1; não \"%2\".").arg(NomesDasTabelas(), texto);
    if (std::find(opcoes.tabelas.begin(), opcoes.tabelas.end(), tabela) == opcoes.tabelas.end())
        opcoes.tabelas.push_back(tabela);
    return {};
}

// By its name too, since a shell takes ";" for its own.
QString LeSeparador(const QString &texto, OpcoesCsv &opcoes)
{
    struct Separador {
        char sinal;
        const char *nome;
    };
    constexpr std::array kSeparadores{Separador{';', "ponto-e-virgula"}, Separador{',', "virgula"},
                                      Separador{'\t', "tab"}};
    for (const Separador &separador : kSeparadores) {
        if (texto == QLatin1Char(separador.sinal) ||
            texto.compare(QLatin1String(separador.nome), Qt::CaseInsensitive) == 0) {
            opcoes.separador = separador.sinal;
            return {};
        }
    }
    return QStringLiteral("--separador pede \";\", \",\" ou tab (ou ponto-e-virgula, virgula), não \"%1\".")
        .arg(texto);
}

QString LeCodificacao(const QString &texto, OpcoesCsv &opcoes)
{
    if (texto.compare(QLatin1String("windows-1252"), Qt::CaseInsensitive) == 0)
        opcoes.codificacao = Codificacao::Windows1252;
    else if (texto.compare(QLatin1String("utf-8"), Qt::CaseInsensitive) == 0)
        opcoes.codificacao = Codificacao::Utf8;
    else
        return QStringLiteral("--codificacao pede windows-1252 ou utf-8, não \"%1\".").arg(texto);
    return {};
}

struct ComValor {
    const char *nome;
    QString (*le)(const QString &, OpcoesCsv &);
};
constexpr std::array kComValor{ComValor{"--tabela", LeTabela}, ComValor{"--separador", LeSeparador},
                               ComValor{"--codificacao", LeCodificacao}};

} // namespace

QString LeOpcoesCsv(const QString &comando, const QStringList &palavras, OpcoesCsv &opcoes)
{
    for (qsizetype i = 0; i < palavras.size(); ++i) {
        const QString &palavra = palavras[i];
        if (!palavra.startsWith(QLatin1String("--"))) {
            if (palavra.isEmpty())
                return QStringLiteral("\"%1\" não aceita um nome vazio.").arg(comando);
            opcoes.lugares.append(palavra);
            continue;
        }
        if (palavra == QLatin1String("--formato") && comando == QLatin1String("importa")) {
            opcoes.formato = true;
            continue;
        }
        const auto *const opcao =
            std::find_if(kComValor.begin(), kComValor.end(),
                         [&palavra](const ComValor &o) { return palavra == QLatin1String(o.nome); });
        if (opcao == kComValor.end())
            return QStringLiteral("\"%1\" não conhece a opção \"%2\".").arg(comando, palavra);
        // A missing value reads as an empty one, which no option takes.
        const QString recusa = opcao->le(palavras.value(++i), opcoes);
        if (!recusa.isEmpty())
            return recusa;
    }
    if (opcoes.lugares.isEmpty())
        return QStringLiteral("\"%1\" pede a pasta do banco de dados.").arg(comando);
    opcoes.pasta = opcoes.lugares.takeFirst();
    return {};
}

const Tabela *AchaTabela(const QString &nome)
{
    for (const Tabela &tabela : Tabelas()) {
        if (nome.compare(NomeDe(tabela), Qt::CaseInsensitive) == 0)
            return &tabela;
    }
    return nullptr;
}

QString NomesDasTabelas()
{
    QStringList nomes;
    for (const Tabela &tabela : Tabelas())
        nomes.append(NomeDe(tabela));
    return nomes.join(QStringLiteral(", "));
}

} // namespace banco
