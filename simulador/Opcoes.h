// The command line of the simulator.
#pragma once

#include <optional>
#include <QString>
#include <QStringList>
#include <variant>

#include "Falha.h"

namespace simulador {

struct Opcoes {
    QString saida;    ///< folder of the documents
    QString memoria;  ///< file of the memory
    QString elo;      ///< link to the port; empty = none
    QString formatos; ///< settings file whose layouts are loaded; empty = none
    QString bytes;    ///< file that gets every byte received; empty = none
    bool janela = false;
    bool automatico = false; ///< the slot always has a document, with a window too
    bool velocidade = false;
    bool comandos = false;
    bool figuras = true; ///< PNG and PDF as well as text
    Falha falha;
    int demoraMs = 5000;          ///< of the late answer
    int esperaDocumentoMs = 8000; ///< for a document in the slot, with a window
    int documentos = 0;           ///< ends after so many; 0 = never
};

/// Why a command line cannot be obeyed, in Portuguese.
struct OpcaoErrada {
    QString motivo;
};
/// --ajuda: `texto` goes to the standard output and the program ends.
struct SoTexto {
    QString texto;
};

QString TextoDeAjuda();
/// Reads the arguments behind the program's name.
std::variant<Opcoes, OpcaoErrada, SoTexto> LeOpcoes(const QStringList &argumentos);

} // namespace simulador
