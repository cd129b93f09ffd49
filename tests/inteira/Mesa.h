// The operator's desk: an office folder, the whole program on it, and a device on the line.
#pragma once

#include "Aparelho.h"
#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "apoio/Escritorio.h"
#include "app/Aplicacao.h"
#include "app/LinhaComando.h"
#include "app/Main.h"
#include "Papel.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>

namespace inteira {

/// The keys of a cheque, field by field.
struct Cheque {
    QString banco, valor, favorecido, cidade, data, numero;
    QStringList comentarios; ///< at most three; with none the lines are not visited
};

inline constexpr Posicoes kPosicoesPadrao = {1, 5, 7, 10, 13, 92, 17, 9, 11, 50, 31, 40, 65};

/// One message box: title and text.
using Vista = std::pair<QString, QString>;
extern const Vista kInsira;      ///< the question for the document
Vista FalhaNoCheque(int numero); ///< the message of a cheque that failed

class Mesa : public testing::Test {
protected:
    Mesa();
    ~Mesa() override;

    /// A bank in the store and in the settings file; before Liga.
    void CadastraBanco(const QString &codigo, const QString &nome, const Posicoes &posicoes);
    /// A key of the settings file; before Liga.
    void PoeChave(const QString &secao, const QString &chave, const QString &valor);
    /// How long the library waits, from its next opening of the port on.
    static void PoeEsperas(int respostaMs, int impressaoMs);
    void PoeBiblioteca();

    /// Switches the device on.
    void Liga(const QStringList &opcoes = {});
    /// Starts the program and waits for its screen.
    void Abre(const app::ArgumentosLinha &argumentos = {});

    /// Types the cheque from the bank's field on, by keys alone, and ends on the print button.
    void Digita(const Cheque &cheque);
    void Preenche(const QString &texto);
    /// Enter on the print button.
    void Imprime();
    /// Tab until the control has the focus.
    void TabAte(const QString &nome);

    app::Main &Tela() { return m_programa->TelaPrincipal(); }
    /// Texts of all fields of the screen.
    QStringList Campos();
    [[nodiscard]] std::vector<Vista> Vistas() const;
    /// Rows of the log, in the order in which they were written.
    [[nodiscard]] QList<QStringList> Log() const;
    /// The sheet of the nth document, from 1.
    [[nodiscard]] QStringList Folha(int n) const;

    apoio::Escritorio escritorio;
    apoio::RelogioParado relogio{QDate(2024, 5, 17)};
    apoio::Caixas caixas;
    Aparelho aparelho{escritorio.Pasta()};

private:
    void GravaIniUmaVez();
    std::map<QString, QStringList> m_ini;
    bool m_gravado = false;
    std::unique_ptr<app::Aplicacao> m_programa;
};

} // namespace inteira
