// The record form "Yeni Kayıt / Değişiklik Formu": a student's fields in blocks, the plan, and the overlay panels.
#pragma once

#include "forms/overlay_frame.h"
#include "forms/window_rules.h"
#include "ui_frame_clauses.h"
#include "ui_frame_nodgs.h"
#include "ui_frame_odemeler.h"
#include "ui_frame_plan.h"
#include "ui_frame_senet.h"
#include "ui_frame_servis.h"
#include "ui_frame_transfer.h"
#include "ui_kurvo_yeni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

#include <array>
#include <map>
#include <vector>

// Passive: builds its blocks from record_fields(), lays itself out, tells when it is closed. It has no default
// button, and Esc does not close it. Every control is a member by its one name and has that name as object name.
class KurvoYeni : public QWidget,
                  public DefaultButtonRule,
                  public Ui::KurvoYeniForm,
                  public Ui::FrameOdemeler,
                  public Ui::FrameNodgs,
                  public Ui::FrameTransfer,
                  public Ui::FramePlan,
                  public Ui::FrameServis,
                  public Ui::FrameClauses,
                  public Ui::FrameSenet {
    Q_OBJECT

public:
    explicit KurvoYeni(QWidget* parent = nullptr);
    ~KurvoYeni() override;

    // KİMLİK and KAYIT
    QLineEdit *ONO, *ADSOY, *ADRES1, *ADRES2, *AILCE, *AIL, *TEL, *RESIM, *ACIKLAMA, *OKULNO, *AYYER, *REFERANS;
    QLineEdit *AYAKKABI, *BEDEN, *SERVISNO, *DURAKNO;
    QComboBox *SNF, *CINSIYET, *KANGR, *KANRH, *GELOKUL, *GRUP, *BOLUM, *KALSEK, *DIN, *OZKOD, *DTABLO;
    DatePicker *KAYTAR, *AYTAR;
    QLabel* USER;
    QCheckBox* SAKLA;
    QPushButton *CommandONAME, *CommandSERVISBUL;
    // NÜFUS CÜZDANI
    QLineEdit *NCSNO, *VATNO, *DOGYER, *IL, *ILCE, *KOY, *CILT, *HANE, *SIRA, *VERYER, *KAYNO;
    DatePicker *DOGTAR, *VERTAR;
    QComboBox* VERNEDEN;
    // AİLE
    QLineEdit *ANNE, *AMESLEK, *AOKUL, *AISYERI, *AISADRES, *AISTEL, *AEVTEL, *AGSMTEL;
    QLineEdit *BABA, *BMESLEK, *BOKUL, *BISYERI, *BISADRES, *BISTEL, *BEVTEL, *BGSMTEL, *KRDSAY;
    QCheckBox *AYRI, *SAVBEL;
    // VELİ VE İŞYERİ
    QLineEdit *VELI, *VYAKINLIK, *VTCNO, *VTEL, *VGSM, *VMAIL;
    QLineEdit *VISVEREN, *VIVUNVAN, *VISADRES, *VISTEL, *VISGIRTAR, *VISAYTAR;
    // YGS NETLERİ
    QLineEdit *OO_4, *OO_5, *OO_6, *OO_7;
    std::array<QLineEdit*, 8> OO{};  // 4 to 7
    std::array<QRadioButton*, 2> OdeOpt{};

    // The panels. All are hidden until they are shown by show(); Frame3 leaves the entry row of the plan free.
    OverlayFrame *FrameNODGS, *Frame1, *Frame2, *FrameSozlesme, *FrameSERVIS;
    QFrame* Frame3;

    // One line at the foot of the form.
    void status(const QString& text);

signals:
    void closed();  // by its user, after the form has hidden itself

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::map<QString, QWidget*> make_controls();
    void build_overlays();
    void set_up_payments();
    void set_tab_order();
    void arrange_columns();
    void place_plan_panel();
    void keep_in_sight(QWidget* control);
    void limit_typing();

    std::vector<QWidget*> reading_order_;
    bool wide_ = true;  // as it is drawn
};
