// Fixture of the register tests: a store whose rows stand in no order, and the screens worked as the operator
// does.
#pragma once

#include "ComEntrada.h"
#include "plataforma/tela/Lista.h"

#include <array>

struct sqlite3;

namespace teste {

/// States of the buttons as `Estado` tells them.
inline const std::string kPronto = "Incluir Fechar, code open";
inline const std::string kSelecionado = "Incluir Alterar Excluir Fechar, code closed";

/// `Command3D1`.
enum Botao : int { Incluir = 0, Alterar = 1, Excluir = 2, Fechar = 3 };

/// One screen of the registers, and what is its own.
struct Registro {
    QString tela;
    QString entrada; ///< of the menu
    QString tabela;
    int seletor;
    QString impressao; ///< control that prints the list
};
inline const Registro kBancos{"Bancos", "subChequeNormal", "Bancos", 2, "SSCommand1"};
inline const Registro kCidade{"Cidade", "Cidad", "Cidade", 1, "Imprime"};
inline const Registro kFavorec{"Favorec", "Favor", "Favorecido", 0, "Imprimirfav"};

void PrintTo(const Registro &registro, std::ostream *os);

/// Holds the store as another program that is writing, while it lives; "EXCLUSIVE" keeps readers out too.
class Trava {
public:
    explicit Trava(const QString &arquivo, const std::string &modo = "IMMEDIATE");
    ~Trava();
    Trava(const Trava &) = delete;
    Trava &operator=(const Trava &) = delete;

private:
    sqlite3 *m_banco = nullptr;
};

class ComCadastro : public ComEntrada {
protected:
    explicit ComCadastro(Registro registro = kBancos);

    /// Starts the program and opens the register by its menu entry.
    void AbreCadastro();
    /// Opens it once more, in the program that runs.
    void AbreDeNovo() { AbrePeloMenu(m_registro.entrada, m_registro.tela); }
    [[nodiscard]] bool EstaAberto() { return !Abertas(m_registro.tela).isEmpty(); }
    [[nodiscard]] QWidget &Cadastro() { return Aberta(m_registro.tela); }
    /// Makes it the active window, when it is open and another one is.
    void AtivaEle();

    [[nodiscard]] plataforma::Lista *List1()
    {
        return apoio::Controle<plataforma::Lista>(Cadastro(), "List1");
    }
    /// Rows of the list, "237 - BANCO DOIS|001 - BANCO UM".
    [[nodiscard]] std::string Lista();
    [[nodiscard]] std::string LinhaCorrente();
    /// Clicks a row of the list, counted from 0.
    void ClicaNaLinha(int linha, Qt::KeyboardModifiers mais = Qt::NoModifier);

    [[nodiscard]] std::string Caixa(const QString &nome)
    {
        return apoio::Texto(Cadastro(), nome).toStdString();
    }
    [[nodiscard]] std::string Caixa(int indice) { return Caixa(QString("Text1(%1)").arg(indice)); }
    /// The texts of `Text1(0)` to `Text1(ultima)`, with '|' between them.
    [[nodiscard]] std::string Caixas(int ultima);
    [[nodiscard]] std::string Selecionado(const QString &nome);
    /// Sets the text of a box as a program does.
    void PoeNaCaixa(const QString &nome, const QString &texto);
    void PoeNaCaixa(int indice, const QString &texto) { PoeNaCaixa(QString("Text1(%1)").arg(indice), texto); }
    void VaiA(const QString &nome);
    /// Goes to a box by a click and types, in place of what stood there.
    void DigitaNela(const QString &nome, const QString &texto);
    void TeclaNele(Qt::Key tecla, Qt::KeyboardModifiers mais = Qt::NoModifier);
    [[nodiscard]] std::string FocoDele() { return apoio::Foco(Cadastro()).toStdString(); }

    void Aperta(int botao) { Aperta(QString("Command3D1(%1)").arg(botao)); }
    void Aperta(const QString &nome);
    /// Which of the four buttons answer, and whether the box of the code does.
    [[nodiscard]] std::string Estado();

    /// Boxes that came since the start, "[Erro] Campo Inválido...", with '|' between them.
    [[nodiscard]] std::string Vistas();
    [[nodiscard]] std::string Chamadas() { return m_gravadora.Chamadas().join(' ').toStdString(); }
    /// Rows of a query, "001,BANCO UM|237,BANCO DOIS".
    [[nodiscard]] std::string Linhas(const QString &consulta);
    [[nodiscard]] std::string Tabela();
    /// Whether another program can write now.
    [[nodiscard]] bool OutroEscreve();
    [[nodiscard]] bool Ampulheta();
    /// Whether the pointer is the hourglass each time the list is filled from now on.
    void ObservaAmpulheta(QStringList &vistas);

    /// Works a modal screen that `acao` opens, then closes it. The test fails when none comes.
    void NaTelaModal(const QString &nome, const std::function<void()> &acao,
                     const std::function<void(QWidget &)> &nela);

    Registro m_registro;
};

template <class T> class ComCadastroDe : public ComCadastro, public testing::WithParamInterface<T> {
};

/// The fifteen texts of a bank's row.
using LinhaDoBanco = std::array<QString, 15>;

inline const LinhaDoBanco kBancoUm = {"001", "BANCO UM", "001", "005", "007", "010", "013", "092",
                                      "017", "009",      "011", "050", "031", "040", "065"};
inline const LinhaDoBanco kBancoDois = {"237", "BANCO DOIS", "002", "006", "008", "011", "014", "093",
                                        "018", "010",        "012", "051", "032", "041", "066"};
inline const LinhaDoBanco kCaixaTres = {"341", "CAIXA TRES", "003", "007", "009", "012", "015", "094",
                                        "019", "011",        "013", "047", "033", "042", "067"};
/// One that is in no store, and passes the position rule.
inline const LinhaDoBanco kBancoNovo = {"104", "BANCO NOVO DA AÇÃO LTDA",
                                        "004", "008",
                                        "010", "013",
                                        "016", "095",
                                        "020", "012",
                                        "014", "048",
                                        "034", "043",
                                        "068"};

/// Its row as `Linhas` tells it, and its boxes as `Caixas` does.
std::string NaTabela(const LinhaDoBanco &banco);
std::string NasCaixas(const LinhaDoBanco &banco);
/// The thirteen numbers as the device gets them.
std::string Posicoes(const LinhaDoBanco &banco);
/// The calls that send a bank to the device.
std::string EnvioDoBanco(const LinhaDoBanco &banco);

/// `Bancos` with three banks: 237, 001, 341, in this order.
class ComBancos : public ComCadastro {
protected:
    ComBancos();
    void Preenche(const LinhaDoBanco &banco);
    [[nodiscard]] std::string Caixas() { return ComCadastro::Caixas(14); }
    [[nodiscard]] QString Formato(const QString &codigo) { return m_escritorio.Chave("Formato", codigo); }
    void Responde(QMessageBox::StandardButton botao) { m_caixas->Responde(botao); }
    const std::string m_pergunta = "[Comando QX70] Deseja Atualizar na Impressora?";
    const std::string m_vazias = "||||||||||||||";
    const std::string m_lista = "237 - BANCO DOIS|001 - BANCO UM|341 - CAIXA TRES";
};

/// `Cidade` or `Favorec`, each with three rows.
class ComCodigoENome : public ComCadastro {
protected:
    explicit ComCodigoENome(const Registro &registro);
    void Preenche(const QString &codigo, const QString &nome);
    [[nodiscard]] std::string Caixas() { return ComCadastro::Caixas(1); }
};

template <class T> class ComBancosDe : public ComBancos, public testing::WithParamInterface<T> {
};

} // namespace teste
