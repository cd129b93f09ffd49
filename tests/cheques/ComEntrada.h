// Fixture of the screen tests: the program on an office of its own, over a Device Library that records its
// calls.
#pragma once

#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "apoio/Escritorio.h"
#include "app/Aplicacao.h"
#include "app/LinhaComando.h"
#include "app/Main.h"
#include "cheques/EntradaCheque.h"

#include <gtest/gtest.h>
#include <memory>
#include <QPushButton>
#include <string>

namespace teste {

/// The calls that the recording library wrote, and the script that it answers from.
class Gravadora {
public:
    explicit Gravadora(const apoio::Escritorio &escritorio);
    /// The calls since Esquece, one a line: ImprimeCheque("237","1,00",...).
    [[nodiscard]] QStringList Chamadas() const;
    void Esquece();
    void Roteiro(const QByteArray &linhas) const;

private:
    const apoio::Escritorio &m_escritorio;
    qsizetype m_esquecidas = 0;
};

class ComEntrada : public testing::Test {
protected:
    ComEntrada();

    /// Ends the program, when it runs, and starts it; settings and store must stand by then. Boxes and calls
    /// of the start are kept apart.
    void Abre(const app::ArgumentosLinha &argumentos = {});
    /// Brings the window to the front again: here nothing does so behind a message box.
    void Ativa();
    /// Opens a screen by its menu entry and makes it the active window.
    void AbrePeloMenu(const QString &entrada, const QString &nome);
    /// Makes the only screen of that name the active window.
    void AtivaTela(const QString &nome);
    /// The screens of that name that the operator sees.
    [[nodiscard]] QList<QWidget *> Abertas(const QString &nome);
    /// The first of them; the test ends when there is none.
    [[nodiscard]] QWidget &Aberta(const QString &nome);
    /// Adds lines to the settings file, sections as "[FrenteInfo]\nValor=1,00\n".
    void Ini(const QString &linhas) { m_escritorio.GravaIni(kIni + linhas); }

    [[nodiscard]] app::Main &Tela() { return m_aplicacao->TelaPrincipal(); }
    [[nodiscard]] nucleo::Sistema &Dados() { return m_aplicacao->Dados(); }
    [[nodiscard]] cheques::EntradaCheque &Entrada() { return Tela().Entrada(); }
    [[nodiscard]] std::string Texto(const QString &nome) { return apoio::Texto(Tela(), nome).toStdString(); }
    [[nodiscard]] std::string Foco() { return apoio::Foco(Tela()).toStdString(); }
    [[nodiscard]] std::string Selecao(const QString &nome);
    [[nodiscard]] std::string NomeDoBanco();
    [[nodiscard]] std::string Dica();

    /// Sets a text as the program does; no field loses the focus.
    void Poe(const QString &nome, const QString &texto);
    /// Puts the focus into a control by a click.
    void VaiPara(const QString &nome);
    /// Goes to a field by a click and types into it, in place of what stood there.
    void DigitaEm(const QString &nome, const QString &texto);
    void Clica(const QString &nome) { apoio::ClicaEm(Tela(), nome); }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mais = Qt::NoModifier)
    {
        apoio::Tecla(Tela(), tecla, mais);
    }
    /// A cheque that passes every check; the focus is in an extra field, which has no leave rule.
    void PreencheCheque();
    [[nodiscard]] QList<QStringList> Log();

    /// The only box that came says just this.
    void EsperaCaixa(const QString &texto, const QString &titulo, QMessageBox::Icon icone);

    static const QString kIni;
    apoio::Escritorio m_escritorio;
    Gravadora m_gravadora{m_escritorio};
    apoio::RelogioParado m_relogio{QDate(2003, 2, 1)};
    std::vector<apoio::Caixa> m_caixasDoInicio;
    QStringList m_chamadasDoInicio;
    std::unique_ptr<apoio::Caixas> m_caixas = std::make_unique<apoio::Caixas>();
    std::unique_ptr<app::Aplicacao> m_aplicacao;
};

template <class T> class ComEntradaDe : public ComEntrada, public testing::WithParamInterface<T> {
};

inline const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace teste
