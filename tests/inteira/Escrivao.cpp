// escrivao cheques|ajustes|expurgo FIRST: a clerk at work. The real main screen on the office folder gets
// real key events: cheque after cheque is printed, or setting after setting saved, numbered from FIRST on,
// until the process is killed; or the purge of the start is let delete what it asks for. Each work is told on
// the output when it begins ("p 12") and when it is done ("w 12").
#include "Ajustes.h"
#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "apoio/Escritorio.h"
#include "app/Aplicacao.h"
#include "app/Main.h"

#include <cstdio>
#include <unistd.h>

using namespace apoio;

namespace {

constexpr int kNaoGravou = 3; // exit codes
constexpr int kSemTela = 4;
constexpr int kSemOuvinte = 5;

void Diz(char o, int numero)
{
    char linha[32];
    const int tamanho = std::snprintf(linha, sizeof linha, "%c %d\n", o, numero);
    if (write(STDOUT_FILENO, linha, static_cast<std::size_t>(tamanho)) != tamanho)
        _exit(kSemOuvinte);
}

/// From the bank's field to the print button; what stands in the fields from the cheque before stays.
void Preenche(const app::Main &tela, int numero)
{
    static bool primeiro = true;
    const QStringList textos{"1", "10,00", "José", "Olinda", "010224"};
    for (const QString &texto : textos) {
        if (primeiro)
            Digita(tela, texto);
        Tecla(tela, Qt::Key_Return);
    }
    primeiro = false;
    Tecla(tela, Qt::Key_F8);
    Digita(tela, QString::number(numero));
    Tecla(tela, Qt::Key_Return);
}

[[noreturn]] void EmiteCheques(const app::Main &tela, int primeiro)
{
    for (int numero = primeiro;; ++numero) {
        apoio::Caixas caixas;
        Preenche(tela, numero);
        if (Foco(tela) != "Opcoes(0)")
            _exit(kSemTela);
        Diz('p', numero);
        Tecla(tela, Qt::Key_Return);
        // Nothing but the question for the document: the row was written.
        if (caixas.Quantas() != 1)
            _exit(kNaoGravou);
        Diz('w', numero);
    }
}

[[noreturn]] void SalvaAjustes(const app::Main &tela, int primeiro)
{
    for (int numero = primeiro;; ++numero) {
        const inteira::Ajuste ajuste = inteira::AjusteDe(numero);
        if (!ajuste.EOpcao()) {
            ClicaEm(tela, ajuste.controle);
            Tecla(tela, Qt::Key_F8);
            Digita(tela, ajuste.valor);
        }
        Diz('p', numero);
        if (ajuste.EOpcao())
            ClicaEm(tela, ajuste.controle);
        else
            Tecla(tela, Qt::Key_F4);
        Diz('w', numero);
    }
}

} // namespace

int main(int quantos, char **argumentos)
{
    if (quantos != 3)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication qt(quantos, argumentos);
    app::CarregaTraducao();
    const RelogioParado relogio{QDate(2024, 2, 1)};
    app::Aplicacao aplicacao(app::CaminhoDaInstalacao(), relogio);
    app::Main &tela = aplicacao.TelaPrincipal();
    const QByteArray trabalho = argumentos[1];
    const int primeiro = QByteArray(argumentos[2]).toInt();
    {
        const apoio::Caixas caixas; // answers the questions of the purge with Yes
        const bool expurgo = trabalho == "expurgo";
        if (expurgo)
            Diz('p', primeiro);
        tela.IniciaAplicacao({});
        if (caixas.Quantas() != (expurgo ? 2 : 0))
            return kNaoGravou;
        if (expurgo) {
            Diz('w', primeiro);
            return 0;
        }
    }
    if (!QTest::qWaitForWindowActive(&tela))
        return kSemTela;
    if (trabalho == "cheques")
        EmiteCheques(tela, primeiro);
    SalvaAjustes(tela, primeiro);
}
