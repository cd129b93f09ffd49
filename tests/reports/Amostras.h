// The stored samples beside the tests: tables, list lines, and pages worked out by paginas.py.
#pragma once

#include <gtest/gtest.h>
#include <map>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace amostras {

/// Bytes of a file of dados/; fails the test and gives none when it cannot be read.
QByteArray Le(const QString &nome);
/// Rows of a tab-separated file.
std::vector<QStringList> Tabela(const QString &nome);
/// Lines of a text of LF line ends, in Windows-1252.
QStringList Linhas(const QString &nome);

/// What is known of the pages of one list: the text of each where they are kept whole, always the digest.
struct Paginas {
    qsizetype quantas = 0;
    QByteArray digesto; ///< SHA-256, hexadecimal, of the pages joined by a byte 0
    std::vector<QByteArray> inteiras;
};
/// By number of rows.
std::map<int, Paginas> LePaginas(const QString &nome);

/// Holds pages against a sample: byte by byte where it is whole, and by the digest.
void ComparaPaginas(const std::vector<QString> &paginas, const Paginas &esperadas);

/// All pages of a generator.
template <typename Gerador> std::vector<QString> Todas(Gerador &&gerador)
{
    std::vector<QString> paginas;
    while (std::optional<QString> pagina = gerador.ProximaPagina())
        paginas.push_back(*pagina);
    return paginas;
}

} // namespace amostras
