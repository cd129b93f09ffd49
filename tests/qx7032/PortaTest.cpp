// Ports: names, configuration, locks, opening and closing; what the library leaves alone.
#include "LinhaDeTeste.h"

#include "qx7032/resultados.h"

#include <csignal>
#include <filesystem>
#include <functional>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <link.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace std::string_literals;

namespace {

// Runs a part of a test in a process of its own, which answers a number.
int EmOutroProcesso(const std::function<int()> &parte)
{
    const pid_t filho = fork();
    if (filho == 0)
        _exit(parte());
    int estado = 0;
    waitpid(filho, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

class Descritor {
public:
    explicit Descritor(const std::string &caminho) : m_numero(open(caminho.c_str(), O_RDWR | O_NOCTTY)) {}
    ~Descritor() { close(m_numero); }
    Descritor(const Descritor &) = delete;
    Descritor &operator=(const Descritor &) = delete;
    [[nodiscard]] bool Tranca() const { return flock(m_numero, LOCK_EX | LOCK_NB) == 0; }

private:
    int m_numero;
};

class PortaTest : public LinhaDeTeste {
protected:
    // The opening fails, and every operation that follows says why.
    void ExigeCausa(const char *porta, int causa)
    {
        EXPECT_EQ(biblioteca.IniciaPorta(Arg(porta)), QX7032_PORTA_NAO_ABRIU);
        EXPECT_EQ(biblioteca.TravaDoc(1), causa);
        EXPECT_EQ(ImprimeUmCheque(), causa);
        EXPECT_EQ(biblioteca.KorvalenTX(Arg("a")), causa);
        EXPECT_EQ(biblioteca.ComandoTX(Arg("a"), 1), causa);
        EXPECT_EQ(biblioteca.FormataTX(Arg("a"), 3, 0, 0, 0, 0), causa);
        EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    }
};

TEST_F(PortaTest, OperationsBeforeAnyOpeningSayThatThePortIsClosed)
{
    EXPECT_EQ(biblioteca.IncluiBanco(Arg("1"), Arg("1")), QX7032_PORTA_FECHADA);
    EXPECT_EQ(biblioteca.KorvalenTX(Arg("a")), QX7032_PORTA_FECHADA);
}

TEST_F(PortaTest, OperationsAfterTheClosingSayThatThePortIsClosed)
{
    Abre();
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_PORTA_FECHADA);
}

TEST_F(PortaTest, ClosingAClosedPortIsASuccess)
{
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    Abre();
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
}

TEST_F(PortaTest, UnknownNamesAreTold)
{
    for (const char *porta : {"COM5", "COM0", "COM10", "LPT1", "", "COM", "/dev/null"})
        ExigeCausa(porta, QX7032_PORTA_DESCONHECIDA);
    EXPECT_EQ(biblioteca.IniciaPorta(nullptr), QX7032_PORTA_NAO_ABRIU);
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_PORTA_DESCONHECIDA);
}

TEST_F(PortaTest, APortMappedToNothingIsUnknown)
{
    pasta.Grava("qx7032.conf", "COM3=\n");
    ExigeCausa("COM3", QX7032_PORTA_DESCONHECIDA);
}

TEST_F(PortaTest, AMissingDeviceIsTold)
{
    ambiente.Define("QX7032_COM2", pasta.Caminho() / "ttyUSB0");
    ExigeCausa("COM2", QX7032_PORTA_AUSENTE);
}

TEST_F(PortaTest, APortLockedByAnotherProgramIsBusyUntilItIsLeft)
{
    {
        const Descritor outro(dispositivo->Caminho());
        ASSERT_TRUE(outro.Tranca());
        ExigeCausa("COM1", QX7032_PORTA_OCUPADA);
    }
    Abre();
}

TEST_F(PortaTest, AnotherProcessFindsThePortBusyWhileItIsOpenHere)
{
    const auto tenta = [this] {
        const PastaDeTeste outraPasta;
        const BibliotecaDeTeste outra(outraPasta);
        const int aberta = outra.IniciaPorta(Arg("COM1"));
        return aberta == 1 ? 1 : outra.TravaDoc(1);
    };
    Abre();
    EXPECT_EQ(EmOutroProcesso(tenta), QX7032_PORTA_OCUPADA);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    EXPECT_EQ(EmOutroProcesso(tenta), QX7032_SUCESSO);
}

TEST_F(PortaTest, AKilledProgramLeavesThePortFree)
{
    const auto morre = [this] {
        const bool aberta = biblioteca.IniciaPorta(Arg("COM1")) == 1;
        if (aberta)
            raise(SIGKILL);
        return 0;
    };
    EXPECT_EQ(EmOutroProcesso(morre), -1);
    Abre();
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
}

TEST_F(PortaTest, APortWithoutPermissionIsTold)
{
    ASSERT_EQ(chmod(dispositivo->Caminho().c_str(), 0), 0);
    const auto tenta = [this] {
        if (geteuid() == 0 && setuid(65534) != 0) // the superuser may open anything
            return 99;
        return biblioteca.IniciaPorta(Arg("COM1")) == 0 ? int{biblioteca.TravaDoc(1)} : 98;
    };
    EXPECT_EQ(EmOutroProcesso(tenta), QX7032_PORTA_SEM_PERMISSAO);
}

TEST_F(PortaTest, WhatIsNoTerminalCannotBeSetUp)
{
    pasta.Grava("arquivo", "");
    ambiente.Define("QX7032_COM1", pasta.Caminho() / "arquivo");
    ExigeCausa("COM1", QX7032_PORTA_NAO_CONFIGURA);
}

TEST_F(PortaTest, SpeedsThatTheLineLacksCannotBeSetUp)
{
    for (const char *velocidade : {"12345", "0", "rápida", "-9600", ""}) {
        pasta.Grava("qx7032.conf", "velocidade="s + velocidade + "\n");
        ExigeCausa("COM1", QX7032_PORTA_NAO_CONFIGURA);
    }
}

TEST_F(PortaTest, AFailedSetUpLeavesThePortFree)
{
    pasta.Grava("qx7032.conf", "velocidade=12345\n");
    EXPECT_EQ(biblioteca.IniciaPorta(Arg("COM1")), QX7032_PORTA_NAO_ABRIU);
    EXPECT_TRUE(Descritor(dispositivo->Caminho()).Tranca());
}

TEST_F(PortaTest, OpeningAnOpenPortOpensItAgain)
{
    Abre();
    EXPECT_EQ(biblioteca.TravaDoc(1), QX7032_SUCESSO);
    Abre();
    EXPECT_EQ(biblioteca.TravaDoc(0), QX7032_SUCESSO);
    EXPECT_EQ(biblioteca.FechaPorta(), QX7032_SUCESSO);
    EXPECT_TRUE(Descritor(dispositivo->Caminho()).Tranca());
}

TEST_F(PortaTest, OpeningAnotherPortThatFailsClosesTheOpenOne)
{
    Abre();
    EXPECT_EQ(biblioteca.IniciaPorta(Arg("COM9")), QX7032_PORTA_NAO_ABRIU);
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_PORTA_DESCONHECIDA);
    EXPECT_TRUE(Descritor(dispositivo->Caminho()).Tranca());
}

TEST_F(PortaTest, TheNameIsTrimmedAndPutInCapitalsInItsBuffer)
{
    std::array<char, 16> porta{"  com1 "};
    porta[8] = '!';
    EXPECT_EQ(biblioteca.IniciaPorta(porta.data()), QX7032_SUCESSO);
    EXPECT_STREQ(porta.data(), "COM1");
    EXPECT_EQ(porta[8], '!'); // nothing is written behind the text
}

TEST_F(PortaTest, TheFileNamesTheDevice)
{
    pasta.Grava("qx7032.conf", "# portas do escritório\r\n\r\ncom2 = /nada\n COM4 = " +
                                   dispositivo->Caminho() + " \r\nCOM4=/outra\nsem igual\n");
    EXPECT_EQ(biblioteca.IniciaPorta(Arg("COM4")), QX7032_SUCESSO); // the first of equal keys counts
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
    ExigeCausa("COM2", QX7032_PORTA_AUSENTE);
}

TEST_F(PortaTest, TheEnvironmentGoesBeforeTheFile)
{
    pasta.Grava("qx7032.conf", "COM1=/nada\nespera_resposta_ms=1\n");
    Abre();
    dispositivo->Reage({{"%", std::chrono::milliseconds(50)}});
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
}

TEST_F(PortaTest, TheFileSetsTheTimeOuts)
{
    ambiente.Define("QX7032_ESPERA_RESPOSTA_MS", ""); // an empty variable counts as none
    ambiente.Define("QX7032_ESPERA_IMPRESSAO_MS", "");
    pasta.Grava("qx7032.conf", "espera_impressao_ms=40\nespera_resposta_ms=7000\n");
    Abre();
    dispositivo->Reage({{"\x06"}});
    const auto inicio = std::chrono::steady_clock::now();
    EXPECT_EQ(biblioteca.TravaDoc(1), QX7032_SEM_CONCLUSAO);
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5));
}

TEST_F(PortaTest, TimeOutsThatCannotBeReadLeaveTheDefaults)
{
    ambiente.Define("QX7032_ESPERA_RESPOSTA_MS", "0");
    ambiente.Define("QX7032_ESPERA_IMPRESSAO_MS", "muito");
    Abre();
    dispositivo->Reage({{"%", std::chrono::milliseconds(50)}});
    EXPECT_EQ(biblioteca.TravaDoc(1), QX7032_SUCESSO);
}

TEST_F(PortaTest, ThePortIsNotHandedToProgramsStartedMeanwhile)
{
    Abre();
    int achados = 0;
    for (const auto &entrada : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code erro;
        const int numero = std::atoi(entrada.path().filename().c_str());
        // The library's own descriptor is the one that does not block; the device keeps another.
        const bool nosso = std::filesystem::read_symlink(entrada.path(), erro) == dispositivo->Caminho() &&
                           (fcntl(numero, F_GETFL) & O_NONBLOCK) != 0;
        if (!nosso)
            continue;
        ++achados;
        EXPECT_TRUE((fcntl(numero, F_GETFD) & FD_CLOEXEC) != 0);
    }
    EXPECT_EQ(achados, 1);
}

TEST_F(PortaTest, SignalsAndThreadsOfTheProgramAreLeftAlone)
{
    const auto fios = [] {
        const std::filesystem::directory_iterator pastaDosFios("/proc/self/task");
        return std::distance(begin(pastaDosFios), end(pastaDosFios));
    };
    signal(SIGPIPE, SIG_DFL);
    const auto antes = fios();
    Abre();
    EXPECT_EQ(biblioteca.ZeraConfig(), QX7032_SUCESSO);
    EXPECT_EQ(fios(), antes);
    EXPECT_EQ(signal(SIGPIPE, SIG_DFL), SIG_DFL);
}

// The dynamic symbols that a loaded library defines for others, by walking its own tables.
std::vector<std::string> SimbolosExportados(void *alca)
{
    link_map *mapa = nullptr;
    dlinfo(alca, RTLD_DI_LINKMAP, &mapa);
    const ElfW(Sym) *simbolos = nullptr;
    const char *nomes = nullptr;
    const std::uint32_t *hash = nullptr;
    for (const ElfW(Dyn) *d = mapa->l_ld; d->d_tag != DT_NULL; ++d) {
        if (d->d_tag == DT_SYMTAB)
            simbolos = reinterpret_cast<const ElfW(Sym) *>(d->d_un.d_ptr);
        if (d->d_tag == DT_STRTAB)
            nomes = reinterpret_cast<const char *>(d->d_un.d_ptr);
        if (d->d_tag == DT_GNU_HASH)
            hash = reinterpret_cast<const std::uint32_t *>(d->d_un.d_ptr);
    }
    // Header: buckets, first hashed symbol, bloom words, shift; a chain ends where the lowest bit is set.
    const std::uint32_t *baldes = hash + 4 + hash[2] * (sizeof(ElfW(Addr)) / 4);
    const std::uint32_t *correntes = baldes + hash[0];
    std::vector<std::string> achados;
    for (std::uint32_t b = 0; b < hash[0]; ++b)
        for (std::uint32_t i = baldes[b]; i >= hash[1]; ++i) {
            achados.emplace_back(nomes + simbolos[i].st_name);
            if ((correntes[i - hash[1]] & 1U) != 0)
                break;
        }
    return achados;
}

TEST_F(PortaTest, TheLibraryExportsTheFifteenOperationsAndNothingElse)
{
    EXPECT_THAT(SimbolosExportados(biblioteca.Alca()),
                testing::UnorderedElementsAre("IniciaPorta", "FechaPorta", "TravaDoc", "FormataTX",
                                              "KorvalenTX", "ComandoTX", "ImprimeCheque", "ImprimeCampoX",
                                              "IncluiBanco", "IncluiFavorecido", "ExcluiFavorecido",
                                              "CancelaRel", "AlteraMoeda", "ZeraConfig", "MontaValor"));
}

} // namespace
