// The whole program, built from its rooms: what main() and the tests of the whole share.
#pragma once

#include "device/Impressora.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Caixas.h"

#include <memory>
#include <QString>

namespace app {

class Main;

/// Passes the gauge on to the main screen, once there is one.
class IndicadorDesviado final : public nucleo::Indicador {
public:
    void Valor(int porCento) override
    {
        if (destino)
            destino->Valor(porCento);
    }
    void Cor(std::uint32_t bgr) override
    {
        if (destino)
            destino->Cor(bgr);
    }
    nucleo::Indicador *destino = nullptr;
};

class Aplicacao {
public:
    /// @param relogio today, as the program sees it; must outlive this
    Aplicacao(const QString &caminhoApp, const nucleo::Relogio &relogio);
    ~Aplicacao();
    Aplicacao(const Aplicacao &) = delete;
    Aplicacao &operator=(const Aplicacao &) = delete;

    [[nodiscard]] nucleo::Sistema &Dados() { return m_sistema; }
    [[nodiscard]] Main &TelaPrincipal() { return *m_main; }

private:
    plataforma::Caixas m_caixas;
    plataforma::OcupadoDaTela m_ocupado;
    IndicadorDesviado m_indicador;
    device::Impressora m_impressora;
    nucleo::Sistema m_sistema;
    std::unique_ptr<Main> m_main;
};

/// Folder of the installation: the environment variable QX70_HOME, else the folder of the executable.
QString CaminhoDaInstalacao();

/// Portuguese for the toolkit's own texts ("Cancelar", "Sim"), whatever the machine's language.
void CarregaTraducao();

} // namespace app
