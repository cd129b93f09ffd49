// See Lista.h. What the toolkit's view does by itself and what a list box does differ in the details of
// "current": here a row is current exactly when it is selected.
#include "plataforma/tela/Lista.h"

#include <algorithm>
#include <array>
#include <QAbstractListModel>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>

namespace plataforma {

class Lista::Modelo final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &pai = {}) const override
    {
        return pai.isValid() ? 0 : m_quantas;
    }
    // The toolkit asks for each row when it lays the list out: no more is done than it takes.
    [[nodiscard]] QModelIndex index(int linha, int coluna = 0, const QModelIndex &pai = {}) const override
    {
        const bool ha = linha >= 0 && linha < m_quantas && coluna == 0 && !pai.isValid();
        return ha ? createIndex(linha, coluna) : QModelIndex();
    }
    [[nodiscard]] QVariant data(const QModelIndex &indice, int papel) const override
    {
        return papel == Qt::DisplayRole ? QVariant(TextoDe(indice.row())) : QVariant();
    }
    [[nodiscard]] QString TextoDe(int linha) const
    {
        return linha >= 0 && linha < m_quantas ? m_texto(linha) : QString();
    }
    void Enche(int quantas, Texto texto)
    {
        beginResetModel();
        m_quantas = texto ? std::max(quantas, 0) : 0;
        m_texto = std::move(texto);
        endResetModel();
    }

private:
    int m_quantas = 0;
    Texto m_texto;
};

namespace {

bool EMovimento(int tecla)
{
    constexpr std::array MOVIMENTOS = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,
                                       Qt::Key_Home, Qt::Key_End,  Qt::Key_PageUp, Qt::Key_PageDown};
    return std::find(MOVIMENTOS.begin(), MOVIMENTOS.end(), tecla) != MOVIMENTOS.end();
}

} // namespace

Lista::Lista(QWidget *pai) : QListView(pai), m_modelo(new Modelo(this))
{
    setUniformItemSizes(true); // one row is measured, not all
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setModel(m_modelo);
}

Lista::~Lista() = default;

void Lista::Enche(int quantas, Texto texto)
{
    m_digitado.clear();
    m_linhaPremida = -1;
    m_modelo->Enche(quantas, std::move(texto));
    scrollToTop();
}

int Lista::Quantas() const
{
    return m_modelo->rowCount();
}

QString Lista::TextoDe(int linha) const
{
    return m_modelo->TextoDe(linha);
}

int Lista::Corrente() const
{
    const QModelIndex indice = currentIndex();
    return indice.isValid() && selectionModel()->isSelected(indice) ? indice.row() : -1;
}

QString Lista::TextoCorrente() const
{
    return TextoDe(Corrente());
}

void Lista::PoeCorrente(int linha)
{
    const QModelIndex indice = m_modelo->index(linha);
    if (indice.isValid())
        selectionModel()->setCurrentIndex(indice, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clear();
}

void Lista::keyPressEvent(QKeyEvent *evento)
{
    const bool comando = evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (EMovimento(evento->key()))
        return Move(evento);
    if (evento->matches(QKeySequence::Copy))
        return Copia();
    if (evento->key() == Qt::Key_Space && (comando || !EstaDigitando()))
        return AlternaCorrente(evento->modifiers().testFlag(Qt::ControlModifier));
    if (!comando && !evento->text().isEmpty() && evento->text().at(0).isPrint())
        return keyboardSearch(evento->text());
    evento->ignore(); // Enter, Esc and the like are the screen's own
}

void Lista::Move(QKeyEvent *evento)
{
    const int antes = Corrente();
    // With no row current a move begins outside of the rows, though one may have the frame of the focus.
    if (antes < 0)
        selectionModel()->clearCurrentIndex();
    QListView::keyPressEvent(evento);
    if (Corrente() >= 0 && Corrente() != antes)
        Q_EMIT Clicada();
}

void Lista::Copia() const
{
    if (Corrente() >= 0)
        QApplication::clipboard()->setText(TextoCorrente());
}

// The space bar takes the row with the frame of the focus; with Ctrl it also gives the current one up.
void Lista::AlternaCorrente(bool desfaz)
{
    if (desfaz && Corrente() >= 0)
        return selectionModel()->clearSelection();
    EscolhePorTecla(currentIndex().row());
}

QModelIndex Lista::moveCursor(CursorAction acao, Qt::KeyboardModifiers modificadores)
{
    if (currentIndex().isValid()) {
        // Sideways is up and down, as in a list box.
        if (acao == MoveLeft || acao == MoveRight)
            acao = acao == MoveLeft ? MoveUp : MoveDown;
        return QListView::moveCursor(acao, modificadores);
    }
    const bool doFim =
        acao == MoveUp || acao == MoveLeft || acao == MovePageUp || acao == MoveEnd || acao == MovePrevious;
    return m_modelo->index(doFim ? Quantas() - 1 : 0);
}

// Makes a row current as a click does; a row that is current already stays so in silence.
void Lista::EscolhePorTecla(int linha)
{
    if (linha < 0 || linha == Corrente())
        return;
    PoeCorrente(linha);
    Q_EMIT Clicada();
}

// The first row from `desde` on, round the end, whose text begins so; -1 when there is none.
int Lista::Procura(const QString &inicio, int desde) const
{
    const int quantas = Quantas();
    for (int i = 0; i < quantas; ++i) {
        const int linha = (desde + i) % quantas;
        if (TextoDe(linha).startsWith(inicio, Qt::CaseInsensitive))
            return linha;
    }
    return -1;
}

bool Lista::EstaDigitando() const
{
    return !m_digitado.isEmpty() && m_ultimaLetra.elapsed() < QApplication::keyboardInputInterval();
}

void Lista::keyboardSearch(const QString &letras)
{
    if (!EstaDigitando())
        m_digitado.clear();
    m_ultimaLetra.start();
    const bool repetida = !m_digitado.isEmpty() && m_digitado.count(letras) == m_digitado.size();
    const int seguinte = Corrente() + 1;
    const int desde = m_digitado.isEmpty() ? seguinte : std::max(Corrente(), 0);
    m_digitado += letras;
    int linha = Procura(m_digitado, desde);
    // The same letter again goes to the next row that begins with it.
    if (linha < 0 && repetida)
        linha = Procura(letras, seguinte);
    EscolhePorTecla(linha);
}

int Lista::LinhaEm(const QMouseEvent *evento) const
{
    return indexAt(evento->position().toPoint()).row();
}

void Lista::mousePressEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    m_digitado.clear();
    m_segundoClique = false;
    m_correnteAoPremir = Corrente();
    m_linhaPremida = LinhaEm(evento);
    QListView::mousePressEvent(evento);
}

void Lista::mouseReleaseEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    const int linha = LinhaEm(evento);
    const int antes = Corrente();
    QListView::mouseReleaseEvent(evento);
    if (linha < 0)
        PoeCorrente(antes); // outside of the rows the toolkit would give it up
    const int corrente = Corrente();
    const bool clique = corrente >= 0 && (corrente == linha || corrente != m_correnteAoPremir);
    const bool segundo = m_segundoClique;
    m_segundoClique = false;
    if (clique && !segundo)
        Q_EMIT Clicada();
}

void Lista::mouseDoubleClickEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    const int linha = LinhaEm(evento);
    // Twice on one row that stayed current; two quick clicks on two rows are just clicks.
    m_segundoClique = linha >= 0 && linha == m_linhaPremida && linha == Corrente();
    if (m_segundoClique)
        Q_EMIT ClicadaDuasVezes();
    else
        mousePressEvent(evento);
}

} // namespace plataforma
