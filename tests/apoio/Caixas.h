// Message boxes as the operator meets them: the test answers the real box and keeps what it said.
#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <vector>

namespace apoio {

/// What one box showed.
struct Caixa {
    QString texto;
    QString titulo;
    QMessageBox::Icon icone = QMessageBox::NoIcon;
    QMessageBox::StandardButtons botoes = QMessageBox::NoButton;
    QMessageBox::StandardButton padrao = QMessageBox::NoButton; ///< the button that Enter presses
};

/// While it lives, each message box that opens is noted and answered: by the next answer given, else by its
/// default button. A mouse click on the real button closes it.
class Caixas final : public QObject {
public:
    Caixas();
    ~Caixas() override;

    /// The answers of the next boxes, in order.
    void Responde(QMessageBox::StandardButton botao) { m_respostas.push_back(botao); }
    /// Runs when the next box stands open, before it is answered (once).
    void AoAbrir(std::function<void(QMessageBox &)> acao) { m_aoAbrir = std::move(acao); }

    [[nodiscard]] const std::vector<Caixa> &Vistas() const { return m_vistas; }
    [[nodiscard]] std::size_t Quantas() const { return m_vistas.size(); }
    /// The last one; an empty one when none came.
    [[nodiscard]] Caixa Ultima() const { return m_vistas.empty() ? Caixa{} : m_vistas.back(); }

    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void Atende(QMessageBox *caixa);

    std::deque<QMessageBox::StandardButton> m_respostas;
    std::function<void(QMessageBox &)> m_aoAbrir;
    std::vector<Caixa> m_vistas;
};

void PrintTo(const Caixa &caixa, std::ostream *os);

} // namespace apoio

QT_BEGIN_NAMESPACE
void PrintTo(const QString &texto, std::ostream *os);
QT_END_NAMESPACE
