// See Configurador.h.
#include "app/Configurador.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/ambiente/Janelas.h"
#include "plataforma/ambiente/Programas.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"

namespace app {

namespace {
const QString kNenhuma = QStringLiteral("0");
const QString kInicioDoTitulo = QStringLiteral("QX70CFG");
const QString kPrograma = QStringLiteral("QX70CFG.EXE");
} // namespace

void ProcuraConfigurador(nucleo::Sistema &sistema)
{
    sistema.JanelaConfigurador = kNenhuma;
    plataforma::PercorreJanelas([&sistema](const QString &titulo) {
        if (plataforma::Left(titulo, 7) == kInicioDoTitulo)
            sistema.JanelaConfigurador = titulo;
    });
}

void AbreConfigurador(nucleo::Sistema &sistema)
{
    ProcuraConfigurador(sistema);
    if (sistema.JanelaConfigurador != kNenhuma) {
        plataforma::AtivaJanela(sistema.JanelaConfigurador);
        return;
    }
    try {
        plataforma::IniciaPrograma(kPrograma, sistema.CaminhoApp);
    } catch (const plataforma::RuntimeError &falha) {
        if (falha.number() != plataforma::ErrFileNotFound)
            throw;
        sistema.mensagens.MsgBox(QStringLiteral("Aplicativo \"QX70CFG.EXE\" não encontrado!\n"),
                                 nucleo::Botoes::OkCancelar, nucleo::Icone::Informacao,
                                 QStringLiteral("QX70 not found!"));
        return;
    }
    ProcuraConfigurador(sistema);
}

} // namespace app
