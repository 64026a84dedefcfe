#include "screens/attendance/frm_ajout_releve.h"

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

/// What the mask leaves of an empty field counts as nothing.
bool EstVide(const QString& heure) { return QString(heure).remove(u':').trimmed().isEmpty(); }

const QString kMinuit = u"00:00"_s;

}  // namespace

TFrmAjoutReleve::TFrmAjoutReleve(TContexteEcran& contexte)
    : contexte_(contexte), avecImplantation_(Globals.Parametres->EstVrai(TParam::PlusieursImplantations)) {}

void TFrmAjoutReleve::Charger(TTypePresence type, TDateTime sortie, TDateTime entree, TDateTime date) {
  Date = FormatDate(date);
  const int index = static_cast<int>(type) - 1;
  IndexType = index < TextesTypePresence().size() ? index : -1;
  Debut = FormatHeureCourte(entree);
  Fin = FormatHeureCourte(sortie);
}

TFrmAjoutReleve::TChamp TFrmAjoutReleve::PremierChamp() const {
  if (Mode == Correction && EstVide(Debut)) return TChamp::Debut;
  if (Mode == Correction && EstVide(Fin)) return TChamp::Fin;
  return TChamp::Type;
}

QStringList TFrmAjoutReleve::Implantations() const {
  QStringList noms;
  if (!avecImplantation_) return noms;
  for (const TImplantation& site : *Globals.Eleves->Implantations)
    noms += site.LibelleCourt.isEmpty() ? site.Code : site.LibelleCourt;
  return noms;
}

QString TFrmAjoutReleve::CodeImplantation() const {
  if (!avecImplantation_ || IndexImplantation < 0) return {};
  return (*Globals.Eleves->Implantations)[IndexImplantation].Code;
}

bool TFrmAjoutReleve::Refuser(TChamp champ) {
  champAttendu_ = champ;
  ResultatModal = TResultatModal::Aucun;
  return false;
}

TDateTime TFrmAjoutReleve::Lire(TChamp champ, const QString& texte, TDateTime (*lire)(const QString&)) {
  champAttendu_ = champ;
  return lire(texte);
}

bool TFrmAjoutReleve::BitBtn1Click() {
  if (EstVide(Debut)) {
    Debut = kMinuit;
    if (EstVide(Fin)) return Refuser(TChamp::Fin);
  } else if (EstVide(Fin)) {
    Fin = kMinuit;
  }
  date_ = Lire(TChamp::Date, Date, StrToDate);
  entree_ = Lire(TChamp::Debut, Debut, StrToTime);
  sortie_ = Lire(TChamp::Fin, Fin, StrToTime);
  ResultatModal = TResultatModal::Valide;
  return Fermer();
}

void TFrmAjoutReleve::BitBtn2Click() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}

bool TFrmAjoutReleve::FormCloseQuery() {
  if (ResultatModal != TResultatModal::Valide) return true;
  if (IndexType < 0) {
    contexte_.Dialogues().Message(u"Veuillez sélectionner un type de relevé"_s);
    return Refuser(TChamp::Type);
  }
  if (avecImplantation_ && IndexImplantation < 0) {
    contexte_.Dialogues().Message(u"Vous devez indiquer l'implantation où le relevé s'est effectué."_s);
    return Refuser(TChamp::Implantation);
  }
  return true;
}
