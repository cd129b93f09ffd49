// The Device Library loaded as the program loads it: a fresh copy for each test, so that no state is left
// over.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include <dlfcn.h>
#include <unistd.h>

/// A folder of its own under the system's temporary one, taken away at the end.
class PastaDeTeste {
public:
    PastaDeTeste()
    {
        std::string molde = std::filesystem::temp_directory_path() / "qx7032.XXXXXX";
        if (mkdtemp(molde.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_caminho = molde;
    }
    ~PastaDeTeste()
    {
        std::error_code ignorado;
        std::filesystem::remove_all(m_caminho, ignorado);
    }
    PastaDeTeste(const PastaDeTeste &) = delete;
    PastaDeTeste &operator=(const PastaDeTeste &) = delete;
    [[nodiscard]] const std::filesystem::path &Caminho() const { return m_caminho; }
    void Grava(const std::string &nome, const std::string &conteudo) const
    {
        std::ofstream(m_caminho / nome, std::ios::binary) << conteudo;
    }

private:
    std::filesystem::path m_caminho;
};

/// Environment variables for the length of a test.
class Ambiente {
public:
    ~Ambiente()
    {
        for (const auto &[nome, antes] : m_antes)
            if (antes.first)
                setenv(nome.c_str(), antes.second.c_str(), 1);
            else
                unsetenv(nome.c_str());
    }
    void Define(const std::string &nome, const std::string &valor)
    {
        const char *antes = std::getenv(nome.c_str());
        m_antes.try_emplace(nome, antes != nullptr, antes != nullptr ? antes : "");
        setenv(nome.c_str(), valor.c_str(), 1);
    }

private:
    std::map<std::string, std::pair<bool, std::string>> m_antes;
};

class BibliotecaDeTeste {
public:
    explicit BibliotecaDeTeste(const PastaDeTeste &pasta)
    {
        const auto copia = pasta.Caminho() / "libqx7032.so";
        std::filesystem::copy_file(QX70_BIN_DIR "/libqx7032.so", copia);
        m_alca = dlopen(copia.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (m_alca == nullptr)
            throw std::runtime_error(dlerror());
        Liga(IniciaPorta, "IniciaPorta");
        Liga(FechaPorta, "FechaPorta");
        Liga(TravaDoc, "TravaDoc");
        Liga(FormataTX, "FormataTX");
        Liga(KorvalenTX, "KorvalenTX");
        Liga(ComandoTX, "ComandoTX");
        Liga(ImprimeCheque, "ImprimeCheque");
        Liga(ImprimeCampoX, "ImprimeCampoX");
        Liga(IncluiBanco, "IncluiBanco");
        Liga(IncluiFavorecido, "IncluiFavorecido");
        Liga(ExcluiFavorecido, "ExcluiFavorecido");
        Liga(CancelaRel, "CancelaRel");
        Liga(AlteraMoeda, "AlteraMoeda");
        Liga(ZeraConfig, "ZeraConfig");
        Liga(MontaValor, "MontaValor");
    }
    ~BibliotecaDeTeste() { dlclose(m_alca); }
    BibliotecaDeTeste(const BibliotecaDeTeste &) = delete;
    BibliotecaDeTeste &operator=(const BibliotecaDeTeste &) = delete;

    [[nodiscard]] void *Alca() const { return m_alca; }

    using Numero = std::int16_t;
    Numero (*IniciaPorta)(char *) = nullptr;
    Numero (*FechaPorta)() = nullptr;
    Numero (*TravaDoc)(Numero) = nullptr;
    Numero (*FormataTX)(char *, Numero, Numero, Numero, Numero, Numero) = nullptr;
    Numero (*KorvalenTX)(char *) = nullptr;
    Numero (*ComandoTX)(char *, Numero) = nullptr;
    Numero (*ImprimeCheque)(char *, char *, char *, char *, char *, char *) = nullptr;
    Numero (*ImprimeCampoX)(Numero, Numero, Numero, char *) = nullptr;
    Numero (*IncluiBanco)(char *, char *) = nullptr;
    Numero (*IncluiFavorecido)(char *, char *) = nullptr;
    Numero (*ExcluiFavorecido)(char *) = nullptr;
    Numero (*CancelaRel)(char *) = nullptr;
    Numero (*AlteraMoeda)(char *, char *) = nullptr;
    Numero (*ZeraConfig)() = nullptr;
    Numero (*MontaValor)(char *, char *, char *) = nullptr;

private:
    template <typename Ponteiro> void Liga(Ponteiro &ponteiro, const char *nome)
    {
        ponteiro = reinterpret_cast<Ponteiro>(dlsym(m_alca, nome));
        if (ponteiro == nullptr)
            throw std::runtime_error(dlerror());
    }
    void *m_alca = nullptr;
};

/// A text argument: a buffer of its own for each call, which the library may rewrite.
class Arg {
public:
    Arg(const char *texto) : m_texto(texto) {}
    Arg(std::string texto) : m_texto(std::move(texto)) {}
    operator char *() { return m_texto.data(); }

private:
    std::string m_texto;
};
