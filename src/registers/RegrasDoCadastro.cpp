// See RegrasDoCadastro.h.
#include "registers/RegrasDoCadastro.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

namespace registers {

QString NumeroAoSair(const QString &texto, const QString &padrao)
{
    return texto.isEmpty() ? texto : plataforma::Format(plataforma::Val(texto), padrao);
}

CodigoENome PartesDaLinha(const QString &linha, int tamanho)
{
    return {plataforma::Mid(linha, 1, 5), plataforma::Mid(linha, 9, tamanho)};
}

} // namespace registers
