// A device with one bank, for the tests of its answers.
#pragma once

#include <gmock/gmock.h>

#include "Apoio.h"

namespace apoio {

inline const QByteArray kAck = "\x06";
inline const QByteArray kNak = "\x15";

class DispositivoTest : public testing::Test {
protected:
    DispositivoTest()
    {
        m_dispositivo.PoeBanco("001", {"BANCO EXEMPLO", simulador::LePosicoes(kPosicoes).value()});
    }

    simulador::Reacao Faz(const qx7032::Evento &evento)
    {
        return m_dispositivo.Recebe(evento, m_haDocumento);
    }
    int Resultado(const qx7032::Evento &evento) { return Faz(evento).resultado; }
    static qx7032::Evento Cheque(int sequencia = 0, const std::string &banco = "001")
    {
        return Ordem('C', {banco, "1.234,56", "Jo\xC6o", "S\xC6o Paulo", "05/03/26", ""}, sequencia);
    }
    static qx7032::Evento Trava(int trava) { return Ordem('T', {trava}); }
    static qx7032::Evento Texto(const std::string &texto, int modo = 3, int f5 = 0)
    {
        return Ordem('F', {texto, modo, 0, 0, f5, 0});
    }
    void PoeFalha(const char *falha) { m_dispositivo.PoeFalha(simulador::LeFalha(falha).value()); }

    simulador::Dispositivo m_dispositivo;
    bool m_haDocumento = true;
};

} // namespace apoio
