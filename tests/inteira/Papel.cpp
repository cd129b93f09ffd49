// See Papel.h.
#include "Papel.h"

#include <QFile>
#include <stdexcept>

namespace inteira {

namespace {

void Escreve(QStringList &folha, const Posto &posto)
{
    QString &linha = folha[posto.linha - 1];
    for (qsizetype i = 0; i < posto.texto.size(); ++i) {
        const qsizetype coluna = posto.coluna - 1 + i;
        if (coluna < 0 || coluna >= kColunas || linha[coluna] != QLatin1Char(' '))
            throw std::logic_error(posto.texto.toStdString() + " has no room in this layout");
        linha[coluna] = posto.texto[i];
    }
}

quint16 Crc(const QByteArray &bytes)
{
    unsigned crc = 0xFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned>(static_cast<unsigned char>(byte)) << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000) != 0 ? (crc << 1) ^ 0x1021 : crc << 1;
    }
    return static_cast<quint16>(crc);
}

QByteArray DoisBytes(qsizetype numero)
{
    return QByteArray(1, static_cast<char>(numero / 256)) + QByteArray(1, static_cast<char>(numero % 256));
}

} // namespace

std::array<QString, 2> LinhasDasPalavras(const QString &palavras, int coluna1, int coluna2)
{
    const int sala = kUltimaColunaDoExtenso - coluna1 + 1;
    const QString comFim = palavras + QLatin1Char(' ');
    const qsizetype corte = comFim.lastIndexOf(QLatin1Char(' '), sala);
    const QString primeira = palavras.left(std::max<qsizetype>(corte, 0));
    const QString segunda = palavras.mid(corte + 1);
    if (segunda.size() > kUltimaColunaDoExtenso - coluna2 + 1)
        throw std::logic_error("the words have no room in this layout");
    return {primeira.leftJustified(sala, QLatin1Char('*')),
            segunda.leftJustified(kUltimaColunaDoExtenso - coluna2 + 1, QLatin1Char('*'))};
}

QStringList FolhaEsperada(const Posicoes &p, const ChequeNoPapel &cheque)
{
    QStringList folha(kLinhas, QString(kColunas, QLatin1Char(' ')));
    const auto palavras = LinhasDasPalavras(cheque.palavras, p[C2], p[C3]);
    Escreve(folha, {p[L1], p[C1], '#' + cheque.valor + '#'});
    Escreve(folha, {p[L2], p[C2], palavras[0]});
    Escreve(folha, {p[L3], p[C3], palavras[1]});
    Escreve(folha, {p[L4], p[C4], cheque.favorecido});
    Escreve(folha, {p[L5], p[C5], cheque.cidade});
    Escreve(folha, {p[L5], p[C5] + p[C6], cheque.dia});
    Escreve(folha, {p[L5], p[C5] + p[C7], cheque.mes});
    Escreve(folha, {p[L5], p[C5] + p[C8], cheque.ano});
    for (const Posto &extra : cheque.extras)
        Escreve(folha, extra);
    return folha;
}

QStringList LeFolha(const QString &documento)
{
    QFile arquivo(documento);
    if (!arquivo.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + documento.toStdString());
    QStringList linhas = QString::fromUtf8(arquivo.readAll()).split(QLatin1Char('\n'));
    linhas.removeLast(); // behind the last line's end
    return linhas;
}

QByteArray Argumento(const QByteArray &texto)
{
    return DoisBytes(texto.size()) + texto;
}

QByteArray Quadro(char tipo, int sequencia, const QByteArray &carga)
{
    const QByteArray miolo =
        DoisBytes(carga.size()) + QByteArray(1, tipo) + QByteArray(1, static_cast<char>(sequencia)) + carga;
    return QByteArray(1, '\x02') + miolo + DoisBytes(Crc(miolo)) + QByteArray(1, '\x03');
}

QByteArray QuadroDoCheque(int sequencia, const QList<QByteArray> &textos)
{
    QByteArray carga;
    for (const QByteArray &texto : textos)
        carga += Argumento(texto);
    return Quadro('C', sequencia, carga);
}

} // namespace inteira
