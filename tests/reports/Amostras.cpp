// See Amostras.h.
#include "Amostras.h"

#include "plataforma/basico/Texto.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace amostras {

QByteArray Le(const QString &nome)
{
    QFile arquivo(QDir(QX70_TEST_DATA).filePath(nome));
    EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly)) << nome.toStdString();
    return arquivo.readAll();
}

QStringList Linhas(const QString &nome)
{
    QStringList linhas = plataforma::FromAnsi(Le(nome)).split('\n');
    EXPECT_EQ(linhas.takeLast(), QString()) << nome.toStdString() << " does not end in a line end";
    return linhas;
}

std::vector<QStringList> Tabela(const QString &nome)
{
    std::vector<QStringList> linhas;
    for (const QString &linha : Linhas(nome))
        linhas.push_back(linha.split('\t'));
    return linhas;
}

namespace {

/// "=== 13 entradas, 2 paginas, sha256 9f86..." or "--- pagina 1, 812 bytes": the words of one line.
QByteArrayList Marca(const QByteArray &tudo, qsizetype &lugar)
{
    const qsizetype fim = tudo.indexOf('\n', lugar);
    const QByteArrayList palavras = tudo.mid(lugar, fim - lugar).split(' ');
    lugar = fim + 1;
    return palavras;
}

} // namespace

std::map<int, Paginas> LePaginas(const QString &nome)
{
    const QByteArray tudo = Le(nome);
    std::map<int, Paginas> amostras;
    Paginas *atual = nullptr;
    for (qsizetype lugar = 0; lugar < tudo.size();) {
        const QByteArrayList marca = Marca(tudo, lugar);
        if (marca.size() == 7 && marca[0] == "===") {
            atual = &amostras[marca[1].toInt()];
            *atual = {marca[3].toLongLong(), marca[6], {}};
        } else if (marca.size() == 5 && marca[0] == "---" && atual) {
            const qsizetype tamanho = marca[3].toLongLong();
            atual->inteiras.push_back(tudo.mid(lugar, tamanho));
            lugar += tamanho + 1;
        } else {
            ADD_FAILURE() << nome.toStdString() << ": no mark at byte " << lugar;
            return {};
        }
    }
    return amostras;
}

void ComparaPaginas(const std::vector<QString> &paginas, const Paginas &esperadas)
{
    ASSERT_EQ(static_cast<qsizetype>(paginas.size()), esperadas.quantas);
    QByteArrayList bytes;
    for (const QString &pagina : paginas)
        bytes += plataforma::ToAnsi(pagina);
    for (std::size_t i = 0; i < esperadas.inteiras.size(); ++i)
        ASSERT_EQ(bytes[static_cast<qsizetype>(i)].toStdString(), esperadas.inteiras[i].toStdString())
            << "page " << i + 1;
    const QByteArray digesto = QCryptographicHash::hash(bytes.join('\0'), QCryptographicHash::Sha256).toHex();
    EXPECT_EQ(digesto.toStdString(), esperadas.digesto.toStdString());
}

} // namespace amostras
