// Bancos: the register of banks, one row being the print layout of that bank's cheque form.
#pragma once

#include "registers/Cadastro.h"
#include "registers/CaixasDoBanco.h"
#include "registers/RegrasDoBanco.h"

#include <QPointer>

class QGridLayout;

namespace registers {

class Ajusta;

/// Keeps a layout in step in three places: the store's row, the key of section `Formato`, and, where the
/// operator agrees, the device.
class Bancos final : public Cadastro, private CaixasDoBanco {
    Q_OBJECT
public:
    Bancos(nucleo::Sistema &sistema, AbreSaida abreSaida, QWidget *pai);
    ~Bancos() override;

protected:
    void LimpaCampos() override;
    bool EnviaAoDispositivo(int comando) override;
    bool MostraLinha(const QString &linha) override;
    void Gravado() override;
    void closeEvent(QCloseEvent *evento) override;

private:
    static Forma FormaDosBancos();
    void MontaControles();
    QLayout *MontaDados();
    QWidget *MontaBloco(const QStringList &rotulos, int primeiraLinha, int primeiraColuna);
    QWidget *MontaData();
    void PoeNumero(QGridLayout *grade, int indice, int linha, int coluna);
    [[nodiscard]] QString Caixa(int indice) const override { return Texto(indice); }
    void PoeCaixa(int indice, const QString &texto) override;
    [[nodiscard]] TextosDoBanco Textos() const;
    void AbreAjuste();
    void FechaAjuste();

    QPushButton *m_command3D2 = nullptr;
    QPointer<Ajusta> m_ajusta;
};

} // namespace registers
