// Fuzz: any bytes as a settings file. A key written is read again, and every other line stays.
#include "plataforma/basico/Texto.h"
#include "plataforma/perfil/ProfileFile.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <QFile>
#include <QTemporaryDir>

using namespace plataforma;

namespace {

void Exige(bool verdade)
{
    if (!verdade) {
        std::abort();
    }
}

QByteArray Conteudo(const QString &caminho)
{
    QFile arquivo(caminho);
    Exige(arquivo.open(QIODevice::ReadOnly));
    return arquivo.readAll();
}

/// Lines without their ends and without the mark of UTF-8; the last one need not have an end.
QList<QByteArray> Linhas(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    QList<QByteArray> linhas = bytes.split('\n');
    if (linhas.last().isEmpty()) {
        linhas.removeLast();
    }
    for (QByteArray &linha : linhas) {
        if (linha.endsWith('\r')) {
            linha.chop(1);
        }
    }
    return linhas;
}

/// One line was replaced, or one (with a new section two) put in; all others are the same.
void ExigeSoUmaLinha(const QList<QByteArray> &antes, const QList<QByteArray> &depois)
{
    const auto inicio = std::mismatch(antes.begin(), antes.end(), depois.begin(), depois.end());
    const auto iguais = std::mismatch(antes.rbegin(), std::make_reverse_iterator(inicio.first),
                                      depois.rbegin(), std::make_reverse_iterator(inicio.second));
    const auto sumiram = iguais.first.base() - inicio.first;
    const auto vieram = iguais.second.base() - inicio.second;
    Exige(sumiram <= 1 && vieram <= (sumiram == 1 ? 1 : 2));
}

QString Texto(FuzzedDataProvider &dados, std::size_t maximo)
{
    const std::string bytes = dados.ConsumeRandomLengthString(maximo);
    return FromAnsi(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t tamanho)
{
    static const QTemporaryDir pasta;
    const QString caminho = pasta.filePath(QStringLiteral("QX70.INI"));
    FuzzedDataProvider dados(bytes, tamanho);
    const QString secao = Texto(dados, 8);
    const QString chave = Texto(dados, 8);
    const QString valor = Texto(dados, 16);
    const std::string resto = dados.ConsumeRemainingBytesAsString();
    const QByteArray antes(resto.data(), static_cast<qsizetype>(resto.size()));
    {
        QFile arquivo(caminho);
        Exige(arquivo.open(QIODevice::WriteOnly) && arquivo.write(antes) == antes.size());
    }
    const ProfileFile perfil(caminho);
    const auto le = [&](const QString &s, const QString &c) {
        return perfil.GetPrivateProfileString(s, c, QStringLiteral("-2"), 160);
    };
    const QString sentinela = le(QStringLiteral("Sistema"), QStringLiteral("port"));
    Exige(sentinela.size() < 160);
    const bool proprio = secao.contains(QStringLiteral("Sistema"), Qt::CaseInsensitive) &&
                         chave.contains(QStringLiteral("port"), Qt::CaseInsensitive);
    if (!perfil.WritePrivateProfileString(secao, chave, valor)) {
        Exige(Conteudo(caminho) == antes);
        return 0;
    }
    ExigeSoUmaLinha(Linhas(antes), Linhas(Conteudo(caminho)));
    Exige(proprio || le(QStringLiteral("Sistema"), QStringLiteral("port")) == sentinela);
    Exige(perfil.WritePrivateProfileString(secao, chave, QStringLiteral("novo")));
    Exige(le(secao, chave) == u"novo");
    return 0;
}
