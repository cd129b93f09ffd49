// See PrintServer.h. The library is loaded when something is printed: it would cost each start of the
// program.
#include "plataforma/ambiente/PrintServer.h"

#include <dlfcn.h>
#include <sys/socket.h>

namespace plataforma {

namespace {

struct Http;
struct Ipp;

constexpr int kPerguntaPelaFilaPadrao = 0x4001; // IPP operation CUPS-Get-Default
constexpr int kPrimeiraFalha = 0x0100;          // IPP statuses below are successes

/// What is called of the library, as its published interface (libcups.so.2) declares it.
struct Cups {
    const char *(*cupsServer)() = nullptr;
    int (*ippPort)() = nullptr;
    int (*cupsEncryption)() = nullptr;
    Http *(*httpConnect2)(const char *servidor, int porta, void *enderecos, int familia, int cifra,
                          int bloqueia, int esperaMs, int *cancela) = nullptr;
    void (*httpSetTimeout)(Http *, double segundos, int (*)(Http *, void *), void *) = nullptr;
    void (*httpClose)(Http *) = nullptr;
    Ipp *(*ippNewRequest)(int operacao) = nullptr;
    Ipp *(*cupsDoRequest)(Http *, Ipp *, const char *recurso) = nullptr; ///< takes the request
    void (*ippDelete)(Ipp *) = nullptr;
    int (*cupsLastError)() = nullptr;
    const char *(*cupsLastErrorString)() = nullptr;
};

template <class F> bool Acha(void *biblioteca, const char *nome, F *&funcao)
{
    funcao = reinterpret_cast<F *>(dlsym(biblioteca, nome));
    return funcao != nullptr;
}

// Null when the machine has no such library. It stays loaded.
const Cups *Carrega()
{
    static Cups cups;
    static const bool carregada = [] {
        void *b = dlopen("libcups.so.2", RTLD_LAZY);
        return b != nullptr && Acha(b, "cupsServer", cups.cupsServer) && Acha(b, "ippPort", cups.ippPort) &&
               Acha(b, "cupsEncryption", cups.cupsEncryption) && Acha(b, "httpConnect2", cups.httpConnect2) &&
               Acha(b, "httpSetTimeout", cups.httpSetTimeout) && Acha(b, "httpClose", cups.httpClose) &&
               Acha(b, "ippNewRequest", cups.ippNewRequest) && Acha(b, "cupsDoRequest", cups.cupsDoRequest) &&
               Acha(b, "ippDelete", cups.ippDelete) && Acha(b, "cupsLastError", cups.cupsLastError) &&
               Acha(b, "cupsLastErrorString", cups.cupsLastErrorString);
    }();
    return carregada ? &cups : nullptr;
}

int Desiste(Http *, void *)
{
    return 0;
}

} // namespace

bool PrintServerAnswers(int esperaMs)
{
    const Cups *cups = Carrega();
    if (!cups)
        return false;
    Http *ligacao = cups->httpConnect2(cups->cupsServer(), cups->ippPort(), nullptr, AF_UNSPEC,
                                       cups->cupsEncryption(), 1, esperaMs, nullptr);
    if (!ligacao)
        return false;
    cups->httpSetTimeout(ligacao, esperaMs / 1000.0, Desiste, nullptr);
    // That no queue is the default one is an answer too.
    Ipp *resposta = cups->cupsDoRequest(ligacao, cups->ippNewRequest(kPerguntaPelaFilaPadrao), "/");
    const bool respondeu = resposta != nullptr;
    cups->ippDelete(resposta);
    cups->httpClose(ligacao);
    return respondeu;
}

QString RefusalOfLastJob()
{
    const Cups *cups = Carrega();
    if (!cups)
        return QStringLiteral("O sistema de impressão (CUPS) não está instalado.");
    if (cups->cupsLastError() < kPrimeiraFalha)
        return {};
    const QString motivo = QString::fromUtf8(cups->cupsLastErrorString());
    return motivo.isEmpty() ? QStringLiteral("Sem motivo informado.") : motivo;
}

} // namespace plataforma
