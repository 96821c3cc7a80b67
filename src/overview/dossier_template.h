// The first page of a dossier, made from the form dokumToplu.
#pragma once

#include "forms/dokum_toplu.h"
#include "forms/kurvo.h"
#include "platform/print_surface.h"
#include "platform/rich_lines.h"
#include "session/context.h"

#include <memory>

// The form lives as long as the object. SAYFANO is the page counter of the whole dossier.
class DossierTemplate {
public:
    // Fills the form from the card. Without the family data and the note the form ends above them.
    DossierTemplate(const Kurvo& kurvo, const SessionContext& session, bool with_family);

    int page() const;
    void raise_page();

    // Puts the form on the current page, with as much of the note as has room.
    void put_form(PrintSurface& paper);
    bool note_goes_on() const { return note_ != nullptr && note_done_ < note_->count(); }
    // Puts the next part of the note on a page of its own, below its head.
    void put_rest_of_note(PrintSurface& paper);

private:
    void fill_identity(const Kurvo& kurvo);
    void fill_family(const Kurvo& kurvo);
    void fill_school(const SessionContext& session);
    void logo_yukle(const QString& path);
    void foto_yukle(const SessionContext& session);
    void put_note(PrintSurface& paper, double x, double y, int end);

    DokumToplu form_;
    std::shared_ptr<const RichLines> note_;  // none where there is nothing to read
    int note_done_ = 0;                      // lines
};
