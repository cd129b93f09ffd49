// A configuration tool that runs already, on a display of the test's own: found by its title and raised.
#include "app/Configurador.h"
#include "device/Impressora.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/ambiente/Desktop.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Janelas = std::vector<xcb_window_t>;

/// Counts the boxes asked for.
class MensagensContadas final : public nucleo::Mensagens {
public:
    nucleo::Resposta MsgBox(const QString &, nucleo::Botoes, nucleo::Icone, const QString &) override
    {
        ++quantas;
        return nucleo::Resposta::Ok;
    }
    int quantas = 0;
};
class SemIndicador final : public nucleo::Indicador {
    void Valor(int) override {}
    void Cor(std::uint32_t) override {}
};
class SemEspera final : public nucleo::Ocupado {
    void Comeca() override {}
    void Termina() override {}
};

// On its display the test is no program of the desktop itself, hence without the screens.
class ConfiguradorAbertoTest : public DesktopTeste {
protected:
    void PoeFerramenta() const
    {
        QFile arquivo(m_pasta.filePath("QX70CFG.EXE"));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write("#!/bin/sh\n: > '" + QFile::encodeName(Marca()) + "'\n");
        ASSERT_TRUE(arquivo.setPermissions(arquivo.permissions() | QFile::ExeOwner | QFile::ExeUser));
    }
    [[nodiscard]] QString Marca() const { return m_pasta.filePath("marca"); }
    QString Procura(const Janelas &janelas)
    {
        Lista(janelas);
        app::ProcuraConfigurador(m_sistema);
        return m_sistema.JanelaConfigurador;
    }

    QTemporaryDir m_pasta;
    MensagensContadas m_mensagens;
    SemIndicador m_indicador;
    SemEspera m_espera;
    nucleo::RelogioDaMaquina m_relogio; ///< nobody asks it here
    device::Impressora m_impressora{{m_pasta.path()}, m_mensagens, m_indicador, m_espera};
    nucleo::Sistema m_sistema{m_pasta.path(), m_mensagens, m_espera, m_relogio, m_impressora};
};

TEST_F(ConfiguradorAbertoTest, TitleIsKept)
{
    EXPECT_EQ(Procura({Cria("Editor"), Cria("QX70CFG - Porta COM2"), Cria("Outro")}), "QX70CFG - Porta COM2");
}

TEST_F(ConfiguradorAbertoTest, TitleMustBeginSoInThisVeryCase)
{
    EXPECT_EQ(Procura({Cria("Qx70cfg"), Cria("Editor - QX70CFG"), Cria("QX70CF"), Cria(" QX70CFG")}), "0");
}

TEST_F(ConfiguradorAbertoTest, TheLastOfSeveralIsKept)
{
    EXPECT_EQ(Procura({Cria("QX70CFG um"), Cria("QX70CFG dois")}), "QX70CFG dois");
}

TEST_F(ConfiguradorAbertoTest, WalkForgetsAToolThatHasGone)
{
    m_sistema.JanelaConfigurador = "QX70CFG";
    EXPECT_EQ(Procura({Cria("Editor")}), "0");
}

TEST_F(ConfiguradorAbertoTest, RunningToolIsRestoredAndRaisedInsteadOfStarted)
{
    PoeFerramenta();
    const auto outra = Cria("Editor");
    const auto ferramenta = Cria("QX70CFG - Porta", nullptr, true);
    Lista({outra, ferramenta});
    app::AbreConfigurador(m_sistema);
    const Pedidos pedidos = Recebidos();
    EXPECT_EQ(pedidos.ativar, Janelas{ferramenta});
    EXPECT_EQ(pedidos.restaurar, Janelas{ferramenta});
    EXPECT_EQ(m_sistema.JanelaConfigurador, "QX70CFG - Porta");
    EXPECT_EQ(m_mensagens.quantas, 0);
    EXPECT_FALSE(QFile::exists(Marca()));
}

TEST_F(ConfiguradorAbertoTest, ToolThatDoesNotRunIsStartedBesideOtherWindows)
{
    PoeFerramenta();
    Lista({Cria("Editor")});
    app::AbreConfigurador(m_sistema);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Marca()); }, 30000));
    EXPECT_TRUE(Recebidos().ativar.empty());
    EXPECT_EQ(m_sistema.JanelaConfigurador, "0") << "the second walk found no window yet";
}

} // namespace
