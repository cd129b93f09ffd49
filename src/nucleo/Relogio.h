// Today, so that no rule asks the machine.
#pragma once

#include <QDate>

namespace nucleo {

class Relogio {
public:
    virtual ~Relogio() = default;
    [[nodiscard]] virtual QDate Hoje() const = 0;
};

class RelogioDaMaquina final : public Relogio {
public:
    [[nodiscard]] QDate Hoje() const override { return QDate::currentDate(); }
};

} // namespace nucleo
