// Message boxes under the names that the rooms above the platform use.
#pragma once

#include "plataforma/basico/Mensagens.h"

namespace nucleo {

using plataforma::Botoes;
using plataforma::Icone;
using plataforma::kTituloPadrao;
using plataforma::Mensagens;
using plataforma::Resposta;

/// Texts that several screens say.
inline const QString kErro = QStringLiteral("Erro");
inline const QString kFabricante = QStringLiteral("Mira Equipamentos para Documentos");
inline const QString kTamanhoMaximo = QStringLiteral("Tamanho Máximo deste campo...");

} // namespace nucleo
