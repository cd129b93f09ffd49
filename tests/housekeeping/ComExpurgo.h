// Fixture of the tests of the purge: rows and copy files of any age, and the boxes of a real start. Today is
// 1 February 2003.
#pragma once

#include "ComEntrada.h"

#include <QDir>
#include <QFile>

namespace teste {

inline constexpr auto kSim = QMessageBox::Yes;
inline constexpr auto kNao = QMessageBox::No;
inline const QString kPerguntaDosCheques =
    "O banco de dados possui cheques cadastrados a mais de %1 dia(s), contando a partir da data de "
    "apresentação. Deseja exclui-los?";
inline const QString kPerguntaDasCopias =
    "O aplicativo possui arquivos de copia com mais de %1 dias! Deseja exclui-los?";

class Expurgo : public ComEntrada {
protected:
    Expurgo() : m_pastaAntes(QDir::currentPath()) {}
    ~Expurgo() override
    {
        m_aplicacao.reset();
        QDir::setCurrent(m_pastaAntes);
    }
    /// A row of the log of that day; a null text is a NULL.
    void PoeCheque(const QString &data, const QString &cancelado = " ")
    {
        const QString indice = QString("%1").arg(++m_linhas, 10, 10, QChar('0'));
        m_escritorio.Sql(
            QString("INSERT INTO Log (\"Index\", Codigo, Data, StCancel) VALUES "
                    "('%1', '%2', %3, '%4')")
                .arg(indice, indice.right(5), data.isNull() ? "NULL" : '\'' + data + '\'', cancelado));
    }
    void PoeCheques(const QStringList &datas)
    {
        for (const QString &data : datas)
            PoeCheque(data);
    }
    void PoeArquivo(const QString &caminho) const
    {
        QFile arquivo(caminho);
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write("copia"), 5);
    }
    void PoeCopias(const QStringList &nomes) const
    {
        for (const QString &nome : nomes)
            PoeArquivo(m_escritorio.Arquivo(nome));
    }
    void AbreRespondendo(const std::vector<QMessageBox::StandardButton> &respostas)
    {
        for (const auto resposta : respostas)
            m_caixas->Responde(resposta);
        Abre();
    }
    /// Days of the rows that are left, NULL as "NULL".
    [[nodiscard]] std::string Datas() const
    {
        QStringList datas;
        for (const QStringList &linha : m_escritorio.Linhas("SELECT Data FROM Log ORDER BY rowid"))
            datas << (linha[0].isNull() ? "NULL" : linha[0]);
        return datas.join(' ').toStdString();
    }
    /// Files whose names begin as those of copies, those of folders too.
    [[nodiscard]] std::string Copias() const
    {
        return QDir(m_escritorio.Pasta())
            .entryList({"cop*"}, QDir::AllEntries, QDir::Name)
            .join(' ')
            .toStdString();
    }
    /// The boxes of the start, one letter each: Q question of the cheques, C of the copies, else the text.
    [[nodiscard]] std::string CaixasDoInicio(int periodo = 30)
    {
        std::string caixas;
        for (const apoio::Caixa &caixa : m_caixasDoInicio)
            caixas += caixa.texto == kPerguntaDosCheques.arg(periodo)  ? "Q"
                      : caixa.texto == kPerguntaDasCopias.arg(periodo) ? "C"
                                                                       : caixa.texto.toStdString();
        return caixas;
    }
    void EsperaPergunta(const apoio::Caixa &caixa, const QString &texto)
    {
        EXPECT_EQ(caixa.texto, texto);
        EXPECT_EQ(caixa.titulo, "QX70 MIRA - Document Printer");
        EXPECT_EQ(caixa.icone, QMessageBox::Question);
        EXPECT_EQ(caixa.botoes, QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(caixa.padrao, QMessageBox::Yes);
    }

private:
    QString m_pastaAntes;
    int m_linhas = 0;
};

} // namespace teste
