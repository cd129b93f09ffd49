// What a rule or a screen asks for when it must tell the operator something; the screen room answers it.
#pragma once

#include <QString>

namespace plataforma {

enum class Icone { Nenhum, Informacao, Exclamacao, Pare, Pergunta };
enum class Botoes { Ok, OkCancelar, SimNao };
enum class Resposta { Ok, Cancelar, Sim, Nao };

inline const QString kTituloPadrao = QStringLiteral("QX70 MIRA - Document Printer");

/// Message boxes, blocking. Closing a box by Esc or by the window's button is Cancelar, Nao or, with one
/// button, Ok.
class Mensagens {
public:
    virtual ~Mensagens() = default;
    virtual Resposta MsgBox(const QString &texto, Botoes botoes = Botoes::Ok, Icone icone = Icone::Nenhum,
                            const QString &titulo = kTituloPadrao) = 0;
};

} // namespace plataforma
