// The memory of the device as a JSON file.
#include "Memoria.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>

namespace simulador {

QString CodigoDe(const QString &texto, int tamanho)
{
    static const QRegularExpression digitos(QStringLiteral("\\A[0-9]+\\z"));
    const QString codigo = texto.trimmed();
    if (codigo.size() > tamanho || !digitos.match(codigo).hasMatch())
        return {};
    return codigo.rightJustified(tamanho, QLatin1Char('0'));
}

void AnotaCheque(Memoria &memoria, const ChequeEnviado &cheque)
{
    memoria.relatorio.append(cheque);
    while (memoria.relatorio.size() > kLimiteDoRelatorio)
        memoria.relatorio.removeFirst();
}

QByteArray EscreveMemoria(const Memoria &memoria)
{
    QJsonObject bancos;
    for (auto i = memoria.bancos.begin(); i != memoria.bancos.end(); ++i)
        bancos.insert(i.key(), QJsonObject{{"nome", i->nome}, {"posicoes", EscrevePosicoes(i->posicoes)}});
    QJsonObject favorecidos;
    for (auto i = memoria.favorecidos.begin(); i != memoria.favorecidos.end(); ++i)
        favorecidos.insert(i.key(), i.value());
    QJsonArray relatorio;
    for (const ChequeEnviado &cheque : memoria.relatorio)
        relatorio.append(QJsonObject{{"banco", cheque.banco},
                                     {"valor", cheque.valor},
                                     {"favorecido", cheque.favorecido},
                                     {"cidade", cheque.cidade},
                                     {"data", cheque.data}});
    const QJsonObject moeda{{"singular", memoria.moedaSingular}, {"plural", memoria.moedaPlural}};
    return QJsonDocument(QJsonObject{{"bancos", bancos},
                                     {"favorecidos", favorecidos},
                                     {"moeda", moeda},
                                     {"digitosDoAno", memoria.digitosDoAno},
                                     {"relatorio", relatorio}})
        .toJson(QJsonDocument::Indented);
}

namespace {

/// Reads the parts of the file; once one is not as it should be, `Inteira` is false.
class Leitor {
public:
    QString Texto(const QJsonObject &objeto, const char *chave)
    {
        const QJsonValue valor = objeto.value(QLatin1String(chave));
        Exige(valor.isString());
        return valor.toString();
    }
    QJsonObject Objeto(const QJsonValue &valor)
    {
        Exige(valor.isObject());
        return valor.toObject();
    }
    void Bancos(const QJsonObject &bancos, Memoria &memoria)
    {
        for (auto i = bancos.begin(); i != bancos.end(); ++i) {
            const QJsonObject banco = Objeto(i.value());
            const auto posicoes = LePosicoes(Texto(banco, "posicoes"));
            Exige(posicoes.has_value() && CodigoDe(i.key(), 3) == i.key());
            memoria.bancos.insert(i.key(), {Texto(banco, "nome"), posicoes.value_or(Posicoes{})});
        }
    }
    void Favorecidos(const QJsonObject &favorecidos, Memoria &memoria)
    {
        for (auto i = favorecidos.begin(); i != favorecidos.end(); ++i) {
            Exige(i.value().isString() && CodigoDe(i.key(), 2) == i.key());
            memoria.favorecidos.insert(i.key(), i.value().toString());
        }
    }
    void Relatorio(const QJsonValue &valor, Memoria &memoria)
    {
        Exige(valor.isArray());
        for (const QJsonValue linha : valor.toArray()) {
            const QJsonObject cheque = Objeto(linha);
            AnotaCheque(memoria, {Texto(cheque, "banco"), Texto(cheque, "valor"), Texto(cheque, "favorecido"),
                                  Texto(cheque, "cidade"), Texto(cheque, "data")});
        }
    }
    void Exige(bool condicao) { m_inteira = m_inteira && condicao; }
    [[nodiscard]] bool Inteira() const { return m_inteira; }

private:
    bool m_inteira = true;
};

} // namespace

std::optional<Memoria> InterpretaMemoria(const QByteArray &bytes)
{
    const QJsonDocument documento = QJsonDocument::fromJson(bytes);
    if (!documento.isObject())
        return std::nullopt;
    const QJsonObject tudo = documento.object();
    Memoria memoria;
    Leitor leitor;
    leitor.Bancos(leitor.Objeto(tudo.value("bancos")), memoria);
    leitor.Favorecidos(leitor.Objeto(tudo.value("favorecidos")), memoria);
    leitor.Relatorio(tudo.value("relatorio"), memoria);
    const QJsonObject moeda = leitor.Objeto(tudo.value("moeda"));
    memoria.moedaSingular = leitor.Texto(moeda, "singular");
    memoria.moedaPlural = leitor.Texto(moeda, "plural");
    memoria.digitosDoAno = tudo.value("digitosDoAno").toInt();
    leitor.Exige(memoria.digitosDoAno == 1 || memoria.digitosDoAno == 2 || memoria.digitosDoAno == 4);
    leitor.Exige(!memoria.moedaSingular.isEmpty() && !memoria.moedaPlural.isEmpty());
    if (!leitor.Inteira())
        return std::nullopt;
    return memoria;
}

/// Moves the file to a free name beside it. @returns that name, empty when it could not be moved
static QString PoeDeLado(const QString &caminho)
{
    QString destino = caminho + QStringLiteral(".danificada");
    for (int n = 2; QFile::exists(destino); ++n)
        destino = caminho + QStringLiteral(".danificada%1").arg(n);
    return QFile::rename(caminho, destino) ? destino : QString();
}

MemoriaLida LeMemoria(const QString &caminho)
{
    QFile arquivo(caminho);
    if (!arquivo.exists())
        return {};
    if (!arquivo.open(QIODevice::ReadOnly))
        return {{},
                QStringLiteral("A memória %1 não pôde ser lida: %2.").arg(caminho, arquivo.errorString())};
    const auto memoria = InterpretaMemoria(arquivo.readAll());
    arquivo.close();
    if (memoria)
        return {*memoria, {}};
    const QString destino = PoeDeLado(caminho);
    if (destino.isEmpty())
        return {{}, QStringLiteral("A memória %1 está danificada e será substituída.").arg(caminho)};
    return {{},
            QStringLiteral("A memória %1 está danificada. Foi guardada como %2 e o simulador começa vazio. "
                           "Envie de novo os bancos e os favorecidos.")
                .arg(caminho, destino)};
}

QString GravaMemoria(const QString &caminho, const Memoria &memoria)
{
    QSaveFile arquivo(caminho);
    const QByteArray bytes = EscreveMemoria(memoria);
    // Unbuffered, since what a buffer held back would fail inside commit, which puts the file in place all
    // the same.
    if (arquivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && arquivo.write(bytes) == bytes.size() &&
        arquivo.commit())
        return {};
    return QStringLiteral("A memória não pôde ser gravada em %1: %2.").arg(caminho, arquivo.errorString());
}

} // namespace simulador
