// See CadastroDeNomes.h.
#include "registers/CadastroDeNomes.h"

#include "plataforma/tela/Formulario.h"
#include "plataforma/tela/Lista.h"
#include "registers/RegrasDoCadastro.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace registers {

using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kTamanhoDoCodigo = 5;
constexpr int kLetrasVisiveis = 48;
constexpr int kAlturaDaLista = 220; // pixels
const QString kCodigo = QStringLiteral("Codigo:");

} // namespace

Cadastro::Forma CadastroDeNomes::FormaDe(const Nomes &nomes)
{
    return {nomes.nome,
            nomes.titulo,
            nomes.tabela,
            {{kCodigo, kCampoCodigo, kTamanhoDoCodigo, QStringLiteral("00000")},
             {nomes.rotuloDoNome, kCampoNome, nomes.limiteDoNome, QString()}},
            QStringLiteral("Procurar por:"),
            nomes.controleDaImpressao,
            nomes.textoDaImpressao,
            nomes.nomeDaListagem,
            nomes.depoisDoTotal,
            nomes.selecione,
            false};
}

CadastroDeNomes::CadastroDeNomes(nucleo::Sistema &sistema, const Nomes &nomes, AbreSaida abreSaida,
                                 QWidget *pai)
    : Cadastro(sistema, FormaDe(nomes), std::move(abreSaida), pai), m_tamanhoNaLista(nomes.tamanhoNaLista)
{
    MontaControles(nomes);
    Carrega();
}

void CadastroDeNomes::MontaControles(const Nomes &nomes)
{
    auto *grade = new QGridLayout;
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    grade->addWidget(Rotulo(kCodigo, Text1(0)), 0, 0);
    grade->addWidget(Text1(0), 0, 1, Qt::AlignLeft);
    grade->addWidget(Rotulo(nomes.rotuloDoNome, Text1(1)), 1, 0);
    grade->addWidget(Text1(1), 1, 1);
    grade->setColumnStretch(1, 1);
    Text1(0)->setFixedWidth(LarguraPara(Text1(0), kTamanhoDoCodigo + 1));
    Text1(1)->setMinimumWidth(LarguraPara(Text1(1), kLetrasVisiveis));

    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kMargem);
    tudo->addLayout(grade);
    tudo->addLayout(MontaLista(), 1);
    List1()->setMinimumHeight(kAlturaDaLista);
    tudo->addLayout(MontaComandos());
    OrdenaTab({0, 1});
}

// By position, not from the store.
bool CadastroDeNomes::MostraLinha(const QString &linha)
{
    const CodigoENome partes = PartesDaLinha(linha, m_tamanhoNaLista);
    Text1(0)->setText(partes.codigo);
    Text1(1)->setText(partes.nome);
    return true;
}

} // namespace registers
