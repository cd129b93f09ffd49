// Fixture of the tests of the log's screens: a log of four cheques, and Relato worked as the operator does.
#pragma once

#include "ComEntrada.h"
#include "plataforma/tela/Lista.h"

#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QScopeGuard>

namespace teste {

/// A row of `Log` as it is stored.
struct Cheque {
    QString index, banco, valor, favor, local, data, nrch, status;
    QStringList comentarios = {{}, {}, {}};
};

/// The log of the fixture: the third one is cancelled.
inline const QList<Cheque> kCheques = {
    {"0000000001", "001", "1234,5", "Ana Lima", "Recife", "01/02/03", "000123", " ", {"nota 1", "", ""}},
    {"0000000002", "237", "1000,", "José Luís", "São Paulo", "15/02/03", " ", " ", {"a", "b", "c"}},
    {"0000000003", "001", "50,25", "Ana Lima", "Olinda", "20/02/03", "000125", "C"},
    {"0000000004", "341", ",75", "Bento & Cia", "Açu", "01/03/03", "000126", " "}};
/// Their lines in the list, told by position.
inline const QStringList kLinhas = {
    "  |      000123 | 001 |         1.234,50 | 01/02/03 | Ana Lima" + QString(66, ' ') + "0000000001",
    "  |             | 237 |         1.000,00 | 15/02/03 | José Luís" + QString(65, ' ') + "0000000002",
    "C |      000125 | 001 |            50,25 | 20/02/03 | Ana Lima" + QString(66, ' ') + "0000000003",
    "  |      000126 | 341 |             0,75 | 01/03/03 | Bento & Cia" + QString(63, ' ') + "0000000004"};

/// Labels of the panel but the total.
inline const QList<int> kDoPainel = {0, 1, 2, 3, 4, 6, 7, 8, 9, 10};

class ComRelato : public ComEntrada {
protected:
    ComRelato()
    {
        for (const Cheque &cheque : kCheques)
            Grava(cheque);
    }

    void Grava(const Cheque &c)
    {
        QStringList valores;
        for (const QString &texto : QStringList{c.index, c.index.right(5), c.banco, c.valor, c.favor, c.local,
                                                c.data, c.nrch, c.status} +
                                        c.comentarios)
            valores << '\'' + QString(texto).replace('\'', "''") + '\'';
        m_escritorio.Sql(
            "INSERT INTO Log (\"Index\", Codigo, Banco, V_CH, Favor, Local, Data, NRCH, StCancel, "
            "Comentario, Comentario1, Comentario2) VALUES (" +
            valores.join(',') + ')');
    }
    /// `quantos` cheques of 1,00 each in the place of the log.
    void GravaIguais(int quantos)
    {
        m_escritorio.Sql(
            "DELETE FROM Log; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
            "WHERE i < " +
            QString::number(quantos) +
            ") INSERT INTO Log (\"Index\", Codigo, Banco, V_CH, Favor, Local, Data, NRCH, StCancel) "
            "SELECT printf('%010d', i), printf('%05d', i), '001', '1,', 'Ana', 'Recife', "
            "'01/02/03', printf('%06d', i), ' ' FROM n");
    }

    /// Starts the program and opens the screen by its menu entry.
    void AbreRelato()
    {
        Abre();
        AbrePeloMenu("Relat", "Relato");
    }
    [[nodiscard]] bool EstaAberta(const QString &nome) { return !Abertas(nome).isEmpty(); }
    [[nodiscard]] QWidget &Relato() { return Aberta("Relato"); }
    void AtivaRelato()
    {
        if (QApplication::activeWindow() != &Relato())
            AtivaTela("Relato");
    }
    [[nodiscard]] plataforma::Lista *List1() { return apoio::Controle<plataforma::Lista>(Relato(), "List1"); }
    [[nodiscard]] QStringList Lista()
    {
        QStringList linhas;
        for (int i = 0; i < List1()->Quantas(); ++i)
            linhas << List1()->TextoDe(i);
        return linhas;
    }
    /// The numbers at the ends of the lines, "1 2 3".
    [[nodiscard]] std::string Listados()
    {
        QStringList numeros;
        for (const QString &linha : Lista())
            numeros << QString::number(linha.right(10).trimmed().toInt());
        return numeros.join(' ').toStdString();
    }
    void ClicaNaLinha(int linha, Qt::KeyboardModifiers mais = Qt::NoModifier)
    {
        AtivaRelato();
        const QModelIndex onde = List1()->model()->index(linha, 0);
        if (!onde.isValid())
            throw std::runtime_error("no row " + std::to_string(linha));
        List1()->scrollTo(onde);
        QTest::mouseClick(List1()->viewport(), Qt::LeftButton, mais,
                          QPoint(20, List1()->visualRect(onde).center().y()));
    }
    void Aperta(const QString &botao)
    {
        AtivaRelato();
        apoio::ClicaEm(Relato(), botao);
    }
    /// Presses a button of a screen that stands over the list.
    void ApertaEm(const QString &tela, const QString &botao)
    {
        if (QApplication::activeWindow() != &Aberta(tela))
            AtivaTela(tela);
        apoio::ClicaEm(Aberta(tela), botao);
    }
    void Marca(const QString &tela, const QString &opcao)
    {
        auto *controle = apoio::Controle<QAbstractButton>(Aberta(tela), opcao);
        QTest::mouseClick(controle, Qt::LeftButton, {}, QPoint(8, controle->height() / 2));
        ASSERT_TRUE(controle->isChecked()) << opcao.toStdString();
    }
    [[nodiscard]] std::string Rotulo(int indice)
    {
        return apoio::Controle<QLabel>(Relato(), QString("Text1(%1)").arg(indice))->text().toStdString();
    }
    [[nodiscard]] std::string Total() { return Rotulo(5); }
    /// The panel but the total, with '|' between the labels.
    [[nodiscard]] std::string Painel()
    {
        QStringList textos;
        for (const int i : kDoPainel)
            textos << QString::fromStdString(Rotulo(i));
        return textos.join('|').toStdString();
    }
    const std::string m_painelVazio = "|||||||||";

    /// Boxes since the start, "[Erro] Campo Inválido...", with '|' between them.
    [[nodiscard]] std::string Vistas()
    {
        QStringList vistas;
        for (const apoio::Caixa &caixa : m_caixas->Vistas())
            vistas << '[' + caixa.titulo + "] " + caixa.texto;
        return vistas.join('|').toStdString();
    }
    void Responde(QMessageBox::StandardButton botao) { m_caixas->Responde(botao); }
    [[nodiscard]] std::string Chamadas() { return m_gravadora.Chamadas().join(' ').toStdString(); }
    /// `StCancel` of the rows in their order, each row as "1:C".
    [[nodiscard]] std::string Status()
    {
        QStringList todos;
        for (const QStringList &linha :
             m_escritorio.Linhas("SELECT CAST(\"Index\" AS INTEGER), trim(StCancel) FROM Log ORDER BY rowid"))
            todos << linha.join(':');
        return todos.join(' ').toStdString();
    }
    /// Whether another program can write now.
    [[nodiscard]] bool OutroEscreve()
    {
        try {
            m_escritorio.Sql("BEGIN IMMEDIATE; INSERT INTO Cidade (Codigo) VALUES ('outro'); COMMIT");
            return true;
        } catch (const std::runtime_error &) {
            return false;
        }
    }
    /// Lets what was closed go.
    static void Descarta() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};

template <class T> class ComRelatoDe : public ComRelato, public testing::WithParamInterface<T> {
};

inline const std::string kTitulo = "QX70 MIRA - Document Printer";

} // namespace teste
