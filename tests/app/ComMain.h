// Fixture of the tests of the main screen: an office folder with a store, a recording device library, a clock
// that stands still, boxes answered for real.
#pragma once

#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "apoio/Escritorio.h"
#include "app/Aplicacao.h"
#include "app/Main.h"

#include <gtest/gtest.h>
#include <memory>
#include <QStringList>

namespace teste {

class ComMain : public testing::Test {
protected:
    /// 5 March 1999.
    ComMain();
    ~ComMain() override;
    void SetUp() override;

    /// Builds the program anew on the office folder and starts it.
    app::Main &Inicia(const app::ArgumentosLinha &argumentos = {});
    /// Builds it only, so that a test may set shared variables before `m_app->TelaPrincipal()` starts.
    app::Main &Monta();
    /// Ends the program, as a restart does.
    void Termina();

    nucleo::Sistema &Dados() { return m_app->Dados(); }
    app::Main &Tela() { return m_app->TelaPrincipal(); }
    /// Makes the main screen the active window again, as a window manager does when a box goes.
    void Ativa();
    /// The timer of the main screen runs out.
    void Tique();
    /// Lets the splash go and makes the main screen active.
    void TerminaAbertura();
    /// A visible window of that name; null when there is none.
    static QWidget *Janela(const QString &nome);
    /// Presses a menu entry; the test ends when there is none.
    void Escolhe(const QString &entrada);

    void PoeArquivo(const QString &nome, const QByteArray &conteudo, bool executavel = false) const;
    void PoeBiblioteca(const char *origem) const;
    /// Calls of the device library so far, one text each.
    [[nodiscard]] QStringList Chamadas() const;

    apoio::Escritorio m_escritorio;
    apoio::RelogioParado m_relogio{QDate(1999, 3, 5)};
    apoio::Caixas m_caixas;
    std::unique_ptr<app::Aplicacao> m_app;

private:
    QString m_pastaAntes;
};

} // namespace teste
