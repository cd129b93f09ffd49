// Fixture of the tests of what leaves the list: the save dialogue worked as the operator does, and the file.
#pragma once

#include "apoio/Dialogos.h"
#include "ComRelato.h"

#include <QFile>
#include <QFileDialog>
#include <QSettings>

namespace teste {

class ComEnvio : public ComRelato {
protected:
    ComEnvio()
    {
        // The toolkit keeps notes on its dialogues.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_casa.path());
    }
    /// Presses a button that opens the save dialogue, and answers it; with no name it is cancelled.
    /// @param aoAceitar what happens between the dialogue and the writing
    void SalvaEm(const char *botao, const QString &nome, const std::function<void()> &aoAceitar = {})
    {
        apoio::Dialogos<QFileDialog> dialogo([&](QFileDialog &aberto) {
            if (nome.isEmpty())
                return;
            aberto.findChild<QLineEdit *>("fileNameEdit")->setText(nome);
            if (aoAceitar)
                QObject::connect(&aberto, &QFileDialog::accepted, aoAceitar);
            apoio::AperteNoDialogo(aberto, QDialogButtonBox::Save);
        });
        Aperta(botao);
        EXPECT_EQ(dialogo.Vistos(), 1);
    }
    [[nodiscard]] QString Destino() const { return m_casa.filePath("relatório.txt"); }
    [[nodiscard]] QByteArray NoArquivo() const
    {
        QFile arquivo(Destino());
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("no file");
    }
    void PoeNoArquivo(const QByteArray &bytes) const
    {
        QFile arquivo(Destino());
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write(bytes);
    }
    /// The texts that were sent to the device, as the recording library wrote them.
    [[nodiscard]] QStringList Enviados()
    {
        QStringList textos;
        for (const QString &chamada : m_gravadora.Chamadas())
            if (chamada.startsWith("FormataTX("))
                textos << chamada;
        return textos;
    }

    QTemporaryDir m_casa;
};

} // namespace teste
