// See Mesa.h.
#include "Mesa.h"

#include <QFile>
#include <QPushButton>

namespace inteira {

const Vista kInsira{QStringLiteral("Impressão do Cheque"), QStringLiteral("Insira o Documento.")};

Vista FalhaNoCheque(int numero)
{
    return {QStringLiteral("Impressão do Cheque (%1)").arg(numero, 3, 10, QLatin1Char('0')),
            QStringLiteral("Problemas com a impressao do cheque")};
}

Mesa::Mesa()
{
    qputenv("QX70_HOME", escritorio.Pasta().toUtf8());
    qputenv("XDG_RUNTIME_DIR", escritorio.Pasta().toUtf8());
    for (const char *chave : {"QX7032_COM2", "QX7032_VELOCIDADE"})
        qunsetenv(chave);
    PoeEsperas(20000, 20000);
    PoeBiblioteca();
    QFile conf(escritorio.Arquivo(QStringLiteral("qx7032.conf")));
    if (!conf.open(QIODevice::WriteOnly) || conf.write("COM2=" + aparelho.Elo().toUtf8() + '\n') < 0)
        throw std::runtime_error("cannot write qx7032.conf");
    escritorio.CriaBanco();
    PoeChave(QStringLiteral("Sistema"), QStringLiteral("port"), QStringLiteral("COM2"));
}

Mesa::~Mesa()
{
    m_programa.reset();
    qunsetenv("QX70_HOME");
    qunsetenv("XDG_RUNTIME_DIR");
}

// A copy, so that each test has a library of its own, with nothing kept from the one before.
void Mesa::PoeBiblioteca()
{
    if (!QFile::copy(QStringLiteral(QX70_BIN_DIR "/libqx7032.so"),
                     escritorio.Arquivo(QStringLiteral("libqx7032.so"))))
        throw std::runtime_error("cannot copy the library");
}

void Mesa::PoeEsperas(int respostaMs, int impressaoMs)
{
    qputenv("QX7032_ESPERA_RESPOSTA_MS", QByteArray::number(respostaMs));
    qputenv("QX7032_ESPERA_IMPRESSAO_MS", QByteArray::number(impressaoMs));
}

void Mesa::CadastraBanco(const QString &codigo, const QString &nome, const Posicoes &posicoes)
{
    QStringList numeros;
    QString valores = QStringLiteral("'%1','%2'").arg(codigo, nome);
    for (const int numero : posicoes) {
        numeros << QStringLiteral("%1").arg(numero, 2, 10, QLatin1Char('0'));
        valores += QStringLiteral(",'%1'").arg(numero, 3, 10, QLatin1Char('0'));
    }
    escritorio.Sql(QStringLiteral("INSERT INTO Bancos VALUES (%1)").arg(valores));
    PoeChave(QStringLiteral("Formato"), codigo, numeros.join(',') + QStringLiteral("    ; ") + nome.left(20));
}

void Mesa::PoeChave(const QString &secao, const QString &chave, const QString &valor)
{
    m_ini[secao] << chave + QLatin1Char('=') + valor;
}

void Mesa::GravaIniUmaVez()
{
    if (std::exchange(m_gravado, true))
        return;
    QString ini;
    for (const auto &[secao, linhas] : m_ini)
        ini += '[' + secao + "]\n" + linhas.join('\n') + '\n';
    escritorio.GravaIni(ini);
}

void Mesa::Liga(const QStringList &opcoes)
{
    GravaIniUmaVez();
    aparelho.Liga(opcoes);
}

void Mesa::Abre(const app::ArgumentosLinha &argumentos)
{
    GravaIniUmaVez();
    m_programa = std::make_unique<app::Aplicacao>(escritorio.Pasta(), relogio);
    Tela().IniciaAplicacao(argumentos);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Tela()));
    ASSERT_EQ(apoio::Foco(Tela()), QStringLiteral("Text1(0)"));
}

// What stands in the field is selected on arrival, so that keys replace it; an empty text needs the key that
// clears.
void Mesa::Preenche(const QString &texto)
{
    if (texto.isEmpty())
        apoio::Tecla(Tela(), Qt::Key_F8);
    apoio::Digita(Tela(), texto);
}

void Mesa::Digita(const Cheque &cheque)
{
    for (const QString &texto :
         {cheque.banco, cheque.valor, cheque.favorecido, cheque.cidade, cheque.data, cheque.numero}) {
        Preenche(texto);
        apoio::Tecla(Tela(), Qt::Key_Return);
    }
    if (!cheque.comentarios.isEmpty()) {
        TabAte(QStringLiteral("Text2(0)"));
        for (int linha = 0; linha < 10; ++linha) {
            Preenche(cheque.comentarios.value(linha));
            apoio::Tecla(Tela(), Qt::Key_Return);
        }
    }
    ASSERT_EQ(apoio::Foco(Tela()), QStringLiteral("Opcoes(0)"));
}

void Mesa::Imprime()
{
    ASSERT_EQ(apoio::Foco(Tela()), QStringLiteral("Opcoes(0)"));
    apoio::Tecla(Tela(), Qt::Key_Return);
}

void Mesa::TabAte(const QString &nome)
{
    for (int i = 0; i < 60 && apoio::Foco(Tela()) != nome; ++i)
        apoio::Tecla(Tela(), Qt::Key_Tab);
    ASSERT_EQ(apoio::Foco(Tela()), nome);
}

QStringList Mesa::Campos()
{
    QStringList campos;
    for (const int i : {0, 1, 2, 3, 4, 6})
        campos << apoio::Texto(Tela(), QStringLiteral("Text1(%1)").arg(i));
    for (int i = 0; i < 3; ++i)
        campos << apoio::Texto(Tela(), QStringLiteral("TxtCpo(%1)").arg(i));
    for (int i = 0; i < 10; ++i)
        campos << apoio::Texto(Tela(), QStringLiteral("Text2(%1)").arg(i));
    return campos;
}

std::vector<Vista> Mesa::Vistas() const
{
    std::vector<Vista> vistas;
    for (const apoio::Caixa &caixa : caixas.Vistas())
        vistas.emplace_back(caixa.titulo, caixa.texto);
    return vistas;
}

QList<QStringList> Mesa::Log() const
{
    return escritorio.Linhas(QStringLiteral(
        "SELECT \"Index\", Codigo, Banco, V_CH, Favor, Local, Data, NRCH, StCancel, Comentario, "
        "Comentario1, Comentario2 FROM Log ORDER BY rowid"));
}

QStringList Mesa::Folha(int n) const
{
    return LeFolha(aparelho.Documentos().at(n - 1));
}

} // namespace inteira
