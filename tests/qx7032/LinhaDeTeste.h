// The fixture of the tests over a pseudo-terminal: a folder, a fresh library and a device on COM1.
#pragma once

#include "BibliotecaDeTeste.h"
#include "DispositivoDeTeste.h"

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

inline std::string EmHexadecimal(std::string_view bytes)
{
    constexpr const char *digitos = "0123456789abcdef";
    std::string texto;
    for (const char c : bytes) {
        texto += digitos[static_cast<unsigned char>(c) >> 4];
        texto += digitos[static_cast<unsigned char>(c) & 0xF];
    }
    return texto;
}

class LinhaDeTeste : public testing::Test {
protected:
    LinhaDeTeste() : biblioteca(pasta), dispositivo(std::make_unique<DispositivoDeTeste>())
    {
        ambiente.Define("QX70_HOME", pasta.Caminho());
        ambiente.Define("QX7032_COM1", dispositivo->Caminho());
        DefineEsperas(5000, 5000); // long enough for any machine; tests of time-outs set their own
    }
    void DefineEsperas(int resposta, int impressao)
    {
        ambiente.Define("QX7032_ESPERA_RESPOSTA_MS", std::to_string(resposta));
        ambiente.Define("QX7032_ESPERA_IMPRESSAO_MS", std::to_string(impressao));
    }
    void Abre() { ASSERT_EQ(biblioteca.IniciaPorta(Arg("COM1")), 1); }
    std::int16_t ImprimeUmCheque()
    {
        return biblioteca.ImprimeCheque(Arg("1"), Arg("2"), Arg("3"), Arg("4"), Arg("5"), Arg("6"));
    }
    std::vector<std::string> QuadrosEmHexadecimal()
    {
        std::vector<std::string> textos;
        for (const std::string &quadro : dispositivo->Quadros())
            textos.push_back(EmHexadecimal(quadro));
        return textos;
    }

    Ambiente ambiente;
    PastaDeTeste pasta;
    BibliotecaDeTeste biblioteca;
    std::unique_ptr<DispositivoDeTeste> dispositivo;
};
