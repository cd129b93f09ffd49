// Fuzz: any command line, and any text in the fields of a cheque. Rules end in a value or in RuntimeError.
#include "app/LinhaComando.h"
#include "cheques/RegrasDaEntrada.h"
#include "cheques/RegrasDaImpressao.h"
#include "plataforma/basico/RuntimeError.h"

#include <cstdint>
#include <cstdlib>
#include <QDate>

namespace {

void Exige(bool verdade)
{
    if (!verdade)
        std::abort();
}

void ProvaCampos(const app::ArgumentosLinha &argumentos)
{
    cheques::TextosDoCheque cheque{
        argumentos[0], argumentos[1], argumentos[2], argumentos[3], argumentos[4], argumentos[6], {}};
    for (const int i : cheques::kCamposDoCheque) {
        const QString &texto = argumentos[static_cast<std::size_t>(i)];
        const auto cortado = cheques::CortaCampo(i, texto);
        Exige(!cortado || !cheques::CortaCampo(i, *cortado)); // once cut, it stays
        static_cast<void>(cheques::PosicaoDaChave(texto));
    }
    static_cast<void>(cheques::BancoAoSair(cheque.banco));
    static_cast<void>(cheques::ValorAoSair(cheque.valor));
    static_cast<void>(cheques::DataDoChequeAoSair(cheque.data, QDate(2026, 11, 21)));
    static_cast<void>(cheques::VerificaCamposDoCheque(cheque, true));
    try {
        static_cast<void>(cheques::MontaTextosDoCheque(cheque));
        static_cast<void>(cheques::MontaLinhaDoLog(cheque, argumentos[6]));
    } catch (const plataforma::RuntimeError &falha) {
        Exige(falha.number() == plataforma::ErrTypeMismatch);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    const QByteArray bytes(reinterpret_cast<const char *>(dados), static_cast<qsizetype>(tamanho));
    for (const QString &linha : {QString::fromUtf8(bytes), QString::fromLatin1(bytes)}) {
        const app::ArgumentosLinha argumentos = app::LeLinhaComando(linha);
        Exige(argumentos[5].isEmpty() && argumentos[7].isEmpty());
        for (const QString &valor : argumentos)
            Exige(!valor.contains(QLatin1Char('/')));
        ProvaCampos(argumentos);
    }
    return 0;
}
