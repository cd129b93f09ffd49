// A CSV file that somebody else may have written: its encoding and separator found out, then its records.
#pragma once

#include "Csv.h"

#include <optional>
#include <QFile>
#include <QString>

namespace banco {

class ArquivoCsv {
public:
    /// Reads the file once for what is not told: the separator stands first in the first line, the encoding
    /// shows in all of it.
    /// @throws RuntimeError 3024 missing, 3051 unreadable or in UTF-16
    ArquivoCsv(const QString &caminho, std::optional<char> separador, std::optional<Codificacao> codificacao);

    /// The next record, a faulty one too. @return false at the end. @throws RuntimeError 3051 while reading
    bool Le(RegistroCsv &registro) { return m_leitor->Le(registro); }
    /// Puts a field of the file into UTF-8. @return position of the first byte that is not of the encoding;
    /// npos when all are
    [[nodiscard]] std::size_t Decodifica(std::string_view campo, std::string &texto) const;

    [[nodiscard]] const QString &Caminho() const { return m_caminho; }
    [[nodiscard]] Codificacao EmQueEsta() const { return m_codificacao; }
    [[nodiscard]] qint64 Tamanho() const { return m_tamanho; } ///< in bytes
    [[nodiscard]] qint64 Lidos() const { return m_lidos; }     ///< bytes so far

private:
    std::size_t LeBytes(char *para, std::size_t quantos);
    void Sonda(std::optional<char> separador, std::optional<Codificacao> codificacao);

    QString m_caminho;
    QFile m_arquivo;
    qint64 m_tamanho = 0;
    qint64 m_lidos = 0;
    char m_separador = ';';
    Codificacao m_codificacao = Codificacao::Windows1252;
    std::optional<LeitorCsv> m_leitor;
};

/// The first of ";", "," and TAB in a line, outside quotes; ";" when there is none.
char SeparadorDe(std::string_view texto);

} // namespace banco
