// See ComEntrada.h.
#include "ComEntrada.h"

#include <QAction>
#include <QFile>
#include <QLabel>

namespace teste {

const QString ComEntrada::kIni = QStringLiteral("[Sistema]\nInRel=1\nport=COM2\n");

Gravadora::Gravadora(const apoio::Escritorio &escritorio) : m_escritorio(escritorio)
{
    qputenv("QX70_GRAVADORA_SAIDA", QFile::encodeName(escritorio.Arquivo("chamadas.txt")));
    qputenv("QX70_GRAVADORA_ROTEIRO", QFile::encodeName(escritorio.Arquivo("roteiro.txt")));
    QFile::copy(QStringLiteral(GRAVADORA), escritorio.Arquivo("libqx7032.so"));
}

QStringList Gravadora::Chamadas() const
{
    QFile arquivo(m_escritorio.Arquivo("chamadas.txt"));
    if (!arquivo.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(arquivo.readAll()).split('\n', Qt::SkipEmptyParts).mid(m_esquecidas);
}

void Gravadora::Esquece()
{
    m_esquecidas += Chamadas().size();
}

void Gravadora::Roteiro(const QByteArray &linhas) const
{
    QFile arquivo(m_escritorio.Arquivo("roteiro.txt"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    ASSERT_EQ(arquivo.write(linhas), linhas.size());
}

ComEntrada::ComEntrada()
{
    m_escritorio.GravaIni(kIni);
    m_escritorio.CriaBanco();
    m_escritorio.Sql("DELETE FROM Bancos; DELETE FROM Log;"
                     "INSERT INTO Bancos (Codigo, Nome) VALUES ('001', 'BANCO UM'), ('237', 'BANCO DOIS')");
}

void ComEntrada::Abre(const app::ArgumentosLinha &argumentos)
{
    m_aplicacao.reset();
    m_aplicacao = std::make_unique<app::Aplicacao>(m_escritorio.Pasta(), m_relogio);
    Tela().IniciaAplicacao(argumentos);
    Ativa();
    m_caixasDoInicio = m_caixas->Vistas();
    m_chamadasDoInicio = m_gravadora.Chamadas();
    m_gravadora.Esquece();
    m_caixas = std::make_unique<apoio::Caixas>();
}

void ComEntrada::Ativa()
{
    Tela().activateWindow();
    // Not qWaitForWindowActive(): to that, a window is active while one that belongs to it is.
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Tela(); }));
}

QList<QWidget *> ComEntrada::Abertas(const QString &nome)
{
    QList<QWidget *> abertas;
    for (QWidget *tela : Tela().findChildren<QWidget *>(nome))
        if (tela->isVisible())
            abertas << tela;
    return abertas;
}

QWidget &ComEntrada::Aberta(const QString &nome)
{
    const QList<QWidget *> abertas = Abertas(nome);
    if (abertas.isEmpty())
        throw std::runtime_error(nome.toStdString() + " is not open");
    return *abertas.first();
}

void ComEntrada::AbrePeloMenu(const QString &entrada, const QString &nome)
{
    auto *acao = Tela().findChild<QAction *>(entrada);
    ASSERT_NE(acao, nullptr) << entrada.toStdString();
    acao->trigger();
    AtivaTela(nome);
}

void ComEntrada::AtivaTela(const QString &nome)
{
    ASSERT_EQ(Abertas(nome).size(), 1) << nome.toStdString();
    QWidget &tela = Aberta(nome);
    tela.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; }));
}

std::string ComEntrada::Selecao(const QString &nome)
{
    return apoio::Controle<QLineEdit>(Tela(), nome)->selectedText().toStdString();
}

std::string ComEntrada::NomeDoBanco()
{
    return apoio::Controle<QLabel>(Tela(), "Label1(6)")->text().toStdString();
}

std::string ComEntrada::Dica()
{
    return apoio::Controle<QLabel>(Tela(), "Panel3D2")->text().toStdString();
}

void ComEntrada::Poe(const QString &nome, const QString &texto)
{
    apoio::Controle<QLineEdit>(Tela(), nome)->setText(texto);
}

void ComEntrada::VaiPara(const QString &nome)
{
    Clica(nome);
    ASSERT_EQ(Foco(), nome.toStdString());
}

void ComEntrada::DigitaEm(const QString &nome, const QString &texto)
{
    VaiPara(nome);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_Delete);
    apoio::Digita(Tela(), texto);
}

void ComEntrada::PreencheCheque()
{
    VaiPara("TxtCpo(0)");
    Poe("Text1(0)", "237");
    Poe("Text1(1)", "1.234,50");
    Poe("Text1(2)", "José Luís");
    Poe("Text1(3)", "São João");
    Poe("Text1(4)", "01/02/03");
    Poe("Text1(6)", "000123");
}

QList<QStringList> ComEntrada::Log()
{
    return m_escritorio.Linhas("SELECT \"Index\", Codigo, Banco, V_CH, Favor, Local, Data, NRCH, StCancel, "
                               "Comentario, Comentario1, Comentario2 FROM Log ORDER BY rowid");
}

void ComEntrada::EsperaCaixa(const QString &texto, const QString &titulo, QMessageBox::Icon icone)
{
    ASSERT_EQ(m_caixas->Quantas(), 1U);
    const apoio::Caixa caixa = m_caixas->Ultima();
    EXPECT_EQ(caixa.texto.toStdString(), texto.toStdString());
    EXPECT_EQ(caixa.titulo.toStdString(), titulo.toStdString());
    EXPECT_EQ(caixa.icone, icone);
    EXPECT_EQ(caixa.botoes, QMessageBox::Ok);
}

} // namespace teste
