// The text and the detail of a document.
#include "Documento.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace simulador {

QString NomeDoCampo(Campo campo)
{
    static const std::array<QString, 9> nomes = {"valor", "extenso1", "extenso2", "favorecido", "cidade",
                                                 "dia",   "mes",      "ano",      "extra"};
    return nomes.at(static_cast<std::size_t>(campo));
}

QString NomeDoTipo(const Documento &documento)
{
    return documento.tipo == Documento::Tipo::Cheque ? QStringLiteral("cheque") : QStringLiteral("folha");
}

static QString GradeDoCheque(const Documento &documento)
{
    std::vector<QString> linhas(kLinhas, QString(kColunas, QLatin1Char(' ')));
    for (const TextoPosto &posto : documento.textos) {
        QString &linha = linhas.at(static_cast<std::size_t>(posto.lugar.linha - 1));
        for (qsizetype i = 0; i < posto.texto.size() && posto.lugar.coluna - 1 + i < kColunas; ++i) {
            // A blank prints nothing: what another text put there stays.
            if (posto.texto.at(i) != QLatin1Char(' '))
                linha[posto.lugar.coluna - 1 + i] = posto.texto.at(i);
        }
    }
    QString grade;
    for (const QString &linha : linhas)
        grade += linha + QLatin1Char('\n');
    return grade;
}

QString Grade(const Documento &documento)
{
    if (documento.tipo == Documento::Tipo::Cheque)
        return GradeDoCheque(documento);
    QString grade;
    for (const LinhaDeFolha &linha : documento.linhas)
        grade += linha.texto + QLatin1Char('\n');
    return grade;
}

static QJsonObject DetalheDoCheque(const Documento &documento)
{
    QJsonArray textos;
    for (const TextoPosto &posto : documento.textos)
        textos.append(QJsonObject{{"campo", NomeDoCampo(posto.campo)},
                                  {"linha", posto.lugar.linha},
                                  {"coluna", posto.lugar.coluna},
                                  {"texto", posto.texto}});
    return {{"banco", documento.formulario.banco},
            {"nome", documento.formulario.nomeDoBanco},
            {"prefixoDoAno", documento.formulario.prefixoDoAno},
            {"textos", textos}};
}

QByteArray Detalhe(const Documento &documento)
{
    QJsonObject objeto;
    if (documento.tipo == Documento::Tipo::Cheque) {
        objeto = DetalheDoCheque(documento);
    } else {
        QJsonArray linhas;
        for (const LinhaDeFolha &linha : documento.linhas)
            linhas.append(QJsonObject{{"texto", linha.texto},
                                      {"largura", linha.largura},
                                      {"enfase", linha.enfase},
                                      {"invertida", linha.invertida}});
        objeto.insert("linhas", linhas);
    }
    objeto.insert("tipo", NomeDoTipo(documento));
    return QJsonDocument(objeto).toJson(QJsonDocument::Indented);
}

} // namespace simulador
