// What the registers of cities and payees share: a code of five digits and a name.
#pragma once

#include "registers/Cadastro.h"

namespace registers {

class CadastroDeNomes : public Cadastro {
    Q_OBJECT
protected:
    /// What tells cities from payees.
    struct Nomes {
        QString nome, titulo;
        int tabela;
        QString rotuloDoNome;
        int limiteDoNome;
        int tamanhoNaLista; ///< characters of the name taken from a row of the list
        QString controleDaImpressao, textoDaImpressao;
        QString nomeDaListagem, depoisDoTotal, selecione;
    };
    CadastroDeNomes(nucleo::Sistema &sistema, const Nomes &nomes, AbreSaida abreSaida, QWidget *pai);

    bool MostraLinha(const QString &linha) override;

private:
    static Forma FormaDe(const Nomes &nomes);
    void MontaControles(const Nomes &nomes);

    const int m_tamanhoNaLista;
};

} // namespace registers
