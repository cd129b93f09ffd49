// A program that writes cheques without a pause while another one is tested.
#include "Escritor.h"

namespace {

constexpr int kEsperaMs = 5000;

} // namespace

Escritor::Escritor(const QString &loja)
    : m_loja(loja.toStdString(), SQLite::OPEN_READWRITE, kEsperaMs), m_linha([this] { Escreve(); })
{
    while (m_escritas == 0 && !m_falhou)
        std::this_thread::yield();
}

Escritor::~Escritor()
{
    m_para = true;
    m_linha.join();
}

void Escritor::Escreve()
{
    try {
        SQLite::Statement inclui(m_loja,
                                 "INSERT INTO Log(\"Index\",Codigo,V_CH,Data,StCancel) SELECT "
                                 "printf('%010d',m),printf('%05d',m%100000),'1,5','15/03/04',' ' FROM "
                                 "(SELECT max(rowid)+1 AS m FROM Log)");
        while (!m_para) {
            inclui.exec();
            inclui.reset();
            ++m_escritas;
        }
    } catch (const SQLite::Exception &) {
        m_falhou = true;
    }
}
