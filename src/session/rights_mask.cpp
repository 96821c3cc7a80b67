#include "session/rights_mask.h"

#include "forms/kurvo.h"

#include <array>

void apply_rights_mask(const QString& mask, Kurvo& kurvo, SessionContext& session) {
    constexpr std::size_t collections = 1;
    const std::array<QPushButton*, 6> buttons{kurvo.CommandYENI, kurvo.CommandTAHSILAT, kurvo.CommandDEVAMSIZLIK,
                                              kurvo.CommandETUD, kurvo.CommandNOT,      kurvo.CommandTOPLU};
    session.collectionsAllowed = 0;
    int top = Kurvo::first_button_top;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const bool allowed = mask.mid(static_cast<qsizetype>(i), 1) == QStringLiteral("1");
        buttons[i]->setVisible(allowed);
        if (!allowed) continue;
        if (i == collections) session.collectionsAllowed = 1;
        if (i > 0) kurvo.place_button(buttons[i], top);  // the first keeps its designed place
        top += Kurvo::button_step;
    }
}
