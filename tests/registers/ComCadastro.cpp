// See ComCadastro.h.
#include "ComCadastro.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>
#include <sqlite3.h>
#include <stdexcept>

namespace teste {

namespace {

QString Valores(const LinhaDoBanco &banco)
{
    QStringList valores;
    for (const QString &texto : banco)
        valores << '\'' + texto + '\'';
    return '(' + valores.join(',') + ')';
}

std::string Junta(const LinhaDoBanco &banco, std::size_t primeiro, QChar entre)
{
    QStringList textos;
    for (std::size_t i = primeiro; i < banco.size(); ++i)
        textos << banco[i];
    return textos.join(entre).toStdString();
}

/// Notes the window of that name that is shown while it lives.
class Espia final : public QObject {
public:
    explicit Espia(QString nome) : m_nome(std::move(nome)) { qApp->installEventFilter(this); }
    ~Espia() override { qApp->removeEventFilter(this); }
    std::function<void(QWidget &)> aoMostrar;
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        auto *tela = evento->type() == QEvent::Show ? qobject_cast<QWidget *>(objeto) : nullptr;
        if (tela && tela->isWindow() && tela->objectName() == m_nome)
            QTimer::singleShot(0, this, [this, viva = QPointer(tela)] {
                if (viva && aoMostrar)
                    aoMostrar(*viva);
            });
        return QObject::eventFilter(objeto, evento);
    }

private:
    QString m_nome;
};

} // namespace

void PrintTo(const Registro &registro, std::ostream *os)
{
    *os << registro.tela.toStdString();
}

Trava::Trava(const QString &arquivo, const std::string &modo)
{
    if (sqlite3_open(arquivo.toUtf8().constData(), &m_banco) != SQLITE_OK ||
        sqlite3_exec(m_banco, ("BEGIN " + modo).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error("the store is not free");
}

Trava::~Trava()
{
    sqlite3_close(m_banco); // what was begun is undone
}

ComCadastro::ComCadastro(Registro registro) : m_registro(std::move(registro))
{
    m_escritorio.Sql(
        "DELETE FROM Bancos; DELETE FROM Cidade; DELETE FROM Favorecido;"
        "INSERT INTO Bancos VALUES " +
        Valores(kBancoDois) + ',' + Valores(kBancoUm) + ',' + Valores(kCaixaTres) +
        ";INSERT INTO Cidade VALUES ('00020', 'São Paulo'), ('00003', 'Recife'), ('00100', 'Açu');"
        "INSERT INTO Favorecido VALUES ('00123', 'José Luís'), ('00007', 'Ana'), "
        "('00045', 'Bento')");
}

void ComCadastro::AbreCadastro()
{
    Abre();
    AbreDeNovo();
}

void ComCadastro::AtivaEle()
{
    if (EstaAberto() && QApplication::activeWindow() != &Cadastro())
        AtivaTela(m_registro.tela);
}

std::string ComCadastro::Lista()
{
    QStringList linhas;
    for (int i = 0; i < List1()->Quantas(); ++i)
        linhas << List1()->TextoDe(i);
    return linhas.join('|').toStdString();
}

std::string ComCadastro::LinhaCorrente()
{
    EXPECT_EQ(List1()->Corrente() < 0, List1()->TextoCorrente().isEmpty());
    return List1()->TextoCorrente().toStdString();
}

void ComCadastro::ClicaNaLinha(int linha, Qt::KeyboardModifiers mais)
{
    AtivaEle();
    const QModelIndex onde = List1()->model()->index(linha, 0);
    if (!onde.isValid())
        throw std::runtime_error("no row " + std::to_string(linha));
    List1()->scrollTo(onde);
    QTest::mouseClick(List1()->viewport(), Qt::LeftButton, mais, List1()->visualRect(onde).center());
}

std::string ComCadastro::Caixas(int ultima)
{
    std::string textos;
    for (int i = 0; i <= ultima; ++i)
        textos += (i > 0 ? "|" : "") + Caixa(i);
    return textos;
}

std::string ComCadastro::Selecionado(const QString &nome)
{
    return apoio::Controle<QLineEdit>(Cadastro(), nome)->selectedText().toStdString();
}

void ComCadastro::PoeNaCaixa(const QString &nome, const QString &texto)
{
    apoio::Controle<QLineEdit>(Cadastro(), nome)->setText(texto);
}

void ComCadastro::VaiA(const QString &nome)
{
    AtivaEle();
    apoio::ClicaEm(Cadastro(), nome);
    ASSERT_EQ(FocoDele(), nome.toStdString());
}

void ComCadastro::DigitaNela(const QString &nome, const QString &texto)
{
    VaiA(nome);
    TeclaNele(Qt::Key_A, Qt::ControlModifier);
    TeclaNele(Qt::Key_Delete);
    apoio::Digita(Cadastro(), texto);
}

void ComCadastro::TeclaNele(Qt::Key tecla, Qt::KeyboardModifiers mais)
{
    AtivaEle();
    apoio::Tecla(Cadastro(), tecla, mais);
}

void ComCadastro::Aperta(const QString &nome)
{
    AtivaEle();
    const auto *botao = apoio::Controle<QPushButton>(Cadastro(), nome);
    ASSERT_TRUE(botao->isEnabled()) << nome.toStdString();
    apoio::ClicaEm(Cadastro(), nome);
}

std::string ComCadastro::Estado()
{
    const std::array<std::string, 4> nomes = {"Incluir", "Alterar", "Excluir", "Fechar"};
    std::string ligados;
    for (int i = 0; i < 4; ++i)
        if (apoio::Controle<QPushButton>(Cadastro(), QString("Command3D1(%1)").arg(i))->isEnabled())
            ligados += (ligados.empty() ? "" : " ") + nomes.at(static_cast<std::size_t>(i));
    const bool codigo = apoio::Controle<QLineEdit>(Cadastro(), "Text1(0)")->isEnabled();
    return ligados + (codigo ? ", code open" : ", code closed");
}

std::string ComCadastro::Vistas()
{
    QStringList vistas;
    for (const apoio::Caixa &caixa : m_caixas->Vistas())
        vistas << '[' + caixa.titulo + "] " + caixa.texto;
    return vistas.join('|').toStdString();
}

std::string ComCadastro::Linhas(const QString &consulta)
{
    QStringList linhas;
    for (const QStringList &linha : m_escritorio.Linhas(consulta))
        linhas << linha.join(',');
    return linhas.join('|').toStdString();
}

std::string ComCadastro::Tabela()
{
    return Linhas("SELECT * FROM " + m_registro.tabela + " ORDER BY rowid");
}

bool ComCadastro::OutroEscreve()
{
    try {
        m_escritorio.Sql("BEGIN IMMEDIATE; INSERT INTO Log (Codigo) VALUES ('outro'); COMMIT");
        return true;
    } catch (const std::runtime_error &) {
        return false;
    }
}

bool ComCadastro::Ampulheta()
{
    const QCursor *porCima = QGuiApplication::overrideCursor();
    return (porCima && porCima->shape() == Qt::WaitCursor) || Cadastro().cursor().shape() == Qt::WaitCursor;
}

void ComCadastro::ObservaAmpulheta(QStringList &vistas)
{
    QObject::connect(List1()->model(), &QAbstractItemModel::modelReset, List1(),
                     [this, &vistas] { vistas << (Ampulheta() ? "hourglass" : "arrow"); });
}

void ComCadastro::NaTelaModal(const QString &nome, const std::function<void()> &acao,
                              const std::function<void(QWidget &)> &nela)
{
    Espia espia(nome);
    int vezes = 0;
    espia.aoMostrar = [&](QWidget &tela) {
        ++vezes;
        tela.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&tela] { return QApplication::activeWindow() == &tela; }));
        nela(tela);
        if (tela.isVisible())
            tela.close();
    };
    acao();
    EXPECT_TRUE(QTest::qWaitFor([&vezes] { return vezes > 0; })) << nome.toStdString();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(vezes, 1);
}

std::string NaTabela(const LinhaDoBanco &banco)
{
    return Junta(banco, 0, ',');
}

std::string NasCaixas(const LinhaDoBanco &banco)
{
    return Junta(banco, 0, '|');
}

std::string Posicoes(const LinhaDoBanco &banco)
{
    return Junta(banco, 2, ',');
}

std::string EnvioDoBanco(const LinhaDoBanco &banco)
{
    return "IniciaPorta(\"COM2\") IncluiBanco(\"" + banco[0].toStdString() + "\",\"" + Posicoes(banco) +
           "\") FechaPorta()";
}

ComBancos::ComBancos() : ComCadastro(kBancos) {}

void ComBancos::Preenche(const LinhaDoBanco &banco)
{
    for (int i = 0; i < 15; ++i)
        PoeNaCaixa(i, banco.at(static_cast<std::size_t>(i)));
}

ComCodigoENome::ComCodigoENome(const Registro &registro) : ComCadastro(registro) {}

void ComCodigoENome::Preenche(const QString &codigo, const QString &nome)
{
    PoeNaCaixa(0, codigo);
    PoeNaCaixa(1, nome);
}

} // namespace teste
