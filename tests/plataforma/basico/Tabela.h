// Tables of answers in dados/: UTF-8, TAB between columns, one header line, texts in double quotes as in
// JSON.
#pragma once

#include <gtest/gtest.h>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>
#include <string>
#include <vector>

namespace tabela {

/// A text without its quotes and escapes; a field without quotes as it stands.
inline QString Campo(const QString &cru)
{
    if (!cru.startsWith(QLatin1Char('"'))) {
        return cru;
    }
    return QJsonDocument::fromJson(QString(QLatin1Char('[') + cru + QLatin1Char(']')).toUtf8())
        .array()
        .at(0)
        .toString();
}

/// The rows below the header, each with `colunas` fields.
inline std::vector<QStringList> Le(const char *arquivo, qsizetype colunas)
{
    QFile dados(QStringLiteral(QX70_TEST_DATA "/") + QLatin1String(arquivo));
    EXPECT_TRUE(dados.open(QIODevice::ReadOnly)) << dados.fileName().toStdString();
    std::vector<QStringList> linhas;
    dados.readLine();
    while (!dados.atEnd()) {
        QStringList campos = QString::fromUtf8(dados.readLine()).chopped(1).split(QLatin1Char('\t'));
        EXPECT_EQ(campos.size(), colunas) << campos.join(QLatin1Char('|')).toStdString();
        for (QString &campo : campos) {
            campo = Campo(campo);
        }
        linhas.push_back(campos);
    }
    EXPECT_FALSE(linhas.empty()) << arquivo;
    return linhas;
}

inline std::string Mostra(const QStringList &linha)
{
    return linha.join(QLatin1String(" | ")).toStdString();
}

} // namespace tabela
