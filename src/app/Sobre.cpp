// See Sobre.h.
#include "app/Sobre.h"

#include "nucleo/Mensagens.h"

#include <algorithm>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

namespace app {

namespace {

// Centred with blanks on both sides, to the width of the longest line.
QString Centrado(const QString &texto, qsizetype largura)
{
    const qsizetype sobra = std::max<qsizetype>(0, largura - texto.size());
    return QString(sobra / 2, QLatin1Char(' ')) + texto + QString(sobra - sobra / 2, QLatin1Char(' '));
}

} // namespace

Sobre::Sobre(const QString &tituloDeMain, bool abertura, nucleo::Mensagens &mensagens, QWidget *pai)
    : Tela(QStringLiteral("Sobre"), mensagens, pai), m_mensagens(mensagens)
{
    QString titulo = QStringLiteral("Sobre o QX70  Mira Document Printer");
    if (abertura) {
        titulo += QStringLiteral("   Aguarde um instante...");
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowDoesNotAcceptFocus);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setFocusPolicy(Qt::NoFocus);
    } else {
        setWindowFlags(Qt::Dialog);
    }
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(titulo);
    MontaControles(tituloDeMain, abertura);
    FechaComEsc(!abertura);
}

void Sobre::MontaControles(const QString &tituloDeMain, bool abertura)
{
    const QStringList linhas = {tituloDeMain,
                                QString(),
                                nucleo::kFabricante,
                                QString(),
                                QStringLiteral("Versão 5.5 - Out/99"),
                                QStringLiteral("www.mira.example"),
                                QStringLiteral("E-mail: suporte@mira.example")};
    qsizetype largura = 0;
    for (const QString &linha : linhas)
        largura = std::max(largura, linha.size() + 4);
    auto *caixa = new QVBoxLayout(this);
    caixa->setContentsMargins(24, 20, 24, 16);
    caixa->setSpacing(4);
    for (int i = 0; i < linhas.size(); ++i) {
        auto *rotulo = new QLabel(Centrado(linhas[i], largura));
        rotulo->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        rotulo->setTextFormat(Qt::PlainText);
        rotulo->setAlignment(Qt::AlignCenter);
        caixa->addWidget(rotulo);
        if (i == 0) {
            m_label1 = rotulo;
            QFont fonte = rotulo->font();
            fonte.setPointSizeF(fonte.pointSizeF() * 1.25);
            fonte.setBold(true);
            rotulo->setFont(fonte);
            rotulo->installEventFilter(this);
        }
    }
    caixa->addSpacing(12);
    m_command = new QPushButton(QStringLiteral("&Fechar"));
    m_command->setObjectName(QStringLiteral("Command3D1"));
    m_command->setVisible(!abertura);
    caixa->addWidget(m_command, 0, Qt::AlignCenter);
    Registra(m_command);
    connect(m_command, &QPushButton::clicked, this, &Sobre::close);
    setFixedSize(sizeHint().expandedTo({420, 0}));
}

bool Sobre::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == m_label1 && evento->type() == QEvent::MouseButtonDblClick) {
        m_mensagens.MsgBox(QStringLiteral("QX70 MIRA: feito para quem assina embaixo."), nucleo::Botoes::Ok,
                           nucleo::Icone::Informacao, windowTitle());
        return true;
    }
    return Tela::eventFilter(objeto, evento);
}

} // namespace app
