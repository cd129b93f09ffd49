// An office folder of a test: settings file and store of its own, thrown away behind it.
#pragma once

#include "nucleo/Relogio.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace apoio {

/// A clock that stands still.
class RelogioParado final : public nucleo::Relogio {
public:
    explicit RelogioParado(QDate hoje) : m_hoje(hoje) {}
    [[nodiscard]] QDate Hoje() const override { return m_hoje; }
    void Acerta(QDate hoje) { m_hoje = hoje; }

private:
    QDate m_hoje;
};

class Escritorio {
public:
    Escritorio();

    [[nodiscard]] QString Pasta() const { return m_pasta.path(); }
    [[nodiscard]] QString Arquivo(const QString &nome) const { return m_pasta.filePath(nome); }

    /// Makes the store with its tables, as the tool does.
    void CriaBanco() const;
    /// Runs statements on the store through the engine itself, apart from the program's own room.
    void Sql(const QString &comandos) const;
    /// Rows of a query, each a list of its values; a NULL is a null text.
    [[nodiscard]] QList<QStringList> Linhas(const QString &consulta) const;

    /// The settings file as bytes; setting it replaces it. Texts are stored in Windows-1252.
    void GravaIni(const QString &conteudo) const;
    [[nodiscard]] QString LeIni() const;
    /// Value of a key, read apart from the program's own room; null when it is not there.
    [[nodiscard]] QString Chave(const QString &secao, const QString &chave) const;

private:
    QTemporaryDir m_pasta;
};

} // namespace apoio
