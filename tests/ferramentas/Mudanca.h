// An office that data comes to, for the tests of bringing it in.
#pragma once

#include "Apoio.h"

#include <QTemporaryDir>
#include <string>

/// An office, and a folder beside it for the files that come.
class Mudanca : public Escritorio {
public:
    void Poe(const char *nome, const std::string &bytes) const
    {
        EscreveArquivo(Arquivo(nome), QByteArray::fromStdString(bytes));
    }
    [[nodiscard]] QString Arquivo(const char *nome) const
    {
        return m_vindos.filePath(QString::fromUtf8(nome));
    }
    [[nodiscard]] Execucao Importa(const QStringList &palavras = {}) const
    {
        return Banco(QStringList{QStringLiteral("importa"), Caminho(), m_vindos.path()} + palavras);
    }
    [[nodiscard]] Execucao ImportaArquivo(const char *nome, const QStringList &palavras = {}) const
    {
        return Banco(QStringList{QStringLiteral("importa"), Caminho(), Arquivo(nome)} + palavras);
    }

private:
    QTemporaryDir m_vindos;
};
