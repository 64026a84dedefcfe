#include "screens/pupils/frm_import.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <utility>

#include "core/accord.h"
#include "core/lecture_dates.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNonCloturee = u"Année non clôturée : pas de transfert"_s;

QString NomSeul(const QString& chemin) { return QFileInfo(chemin).fileName(); }

/// At most so many names are listed in a message.
constexpr qsizetype kNomsListes = 20;

struct TMotEffet {
  TSortLigne Sort;
  QString Un, Plusieurs;
};

const TMotEffet kMotsEffet[] = {{TSortLigne::Nouveau, u"nouveau"_s, u"nouveaux"_s},
                                {TSortLigne::Modifie, u"modifié"_s, u"modifiés"_s},
                                {TSortLigne::Inchange, u"inchangé"_s, u"inchangés"_s},
                                {TSortLigne::Illisible, u"illisible"_s, u"illisibles"_s}};

/// What is no date is shown as it stands in the file.
TValeurVue DateOuTexte(const QString& texte) {
  const TDateTime date = LireDateBarre(texte);
  return date != 0.0 ? TValeurVue(date) : TValeurVue(texte);
}

TCellules Cellules(const TFicheRegistre& f) {
  return {{},       f.Matricule, f.Nom,         f.Prenom,  DateOuTexte(f.Naissance),
          f.Classe, f.Site,      f.Responsable, f.Localite};
}

}  // namespace

TFrmImport::TFrmImport(TContexteEcran& contexte) : contexte_(contexte) {
  Grille.DefinirColonnes({{u"État"_s, 110, TGenre::Etat},
                          {u"Matricule"_s, 120},
                          {u"Nom"_s, 161},
                          {u"Prénom"_s, 120},
                          {u"Naissance"_s, 96, TGenre::Date},
                          {u"Classe"_s, 64},
                          {u"Implantation"_s, 112},
                          {u"Responsable"_s, 168},
                          {u"Localité"_s, 112}});
  Grille.Etats = {{},
                  {u"En cours"_s, u"data-information"_s},
                  {u"Transféré"_s, u"dialog-ok-apply"_s},
                  {u"Refusé"_s, u"data-error"_s},
                  {u"Nouveau"_s, u"list-add"_s},
                  {u"Modifié"_s, u"document-edit"_s},
                  {u"Inchangé"_s, {}},
                  {u"Illisible"_s, u"data-error"_s},
                  {u"Parti"_s, u"data-warning"_s}};
}

void TFrmImport::FormShow() {
  import_ = std::make_unique<TImportRegistre>(contexte_.Controleur);
  import_->SurLecture = [this] {  // shown before the question about the year
    DefinirFichier(TNiveauEtat::Neutre, QString(u"Fichier lu : " % NomSeul(import_->Fichier())));
    RemplirGrille();
  };
  import_->SurLigneTransferee = [this](int ligne) { SuivreLigne(ligne); };
}

bool TFrmImport::FormCloseQuery() {
  if (!enCours_) return true;
  contexte_.Principal.Etat(TNiveauEtat::Alerte,
                           u"Une importation est en cours : l'écran reste ouvert jusqu'à la fin."_s);
  return false;
}

void TFrmImport::btnEtape1Click() {
  if (enCours_) return;
  {
    const QScopedValueRollback enCours(enCours_, true);
    import_->Vider();
    feuille_ = {};
    fichier_ = {};
    effet_ = {};
    RemplirGrille();
    const auto chemin = contexte_.Dialogues().ChoisirFichier(u"Ouvrir le fichier de données"_s,
                                                             u"Export du registre (*.csv *.txt)"_s);
    if (chemin) Ouvrir(*chemin);
  }
  Annoncer();
}

void TFrmImport::Ouvrir(const QString& chemin) {
  try {
    DecrireFichier(import_->Etape1(chemin));
  } catch (const Exception& e) {
    enCours_ = false;
    DefinirFichier(TNiveauEtat::Erreur, dynamic_cast<const ECloture*>(&e) != nullptr
                                            ? kNonCloturee
                                            : QString(u"Fichier refusé : " % NomSeul(chemin)));
    Annoncer();
    throw;
  }
}

void TFrmImport::DecrireFichier(bool accepte) {
  if (accepte)
    AnnoncerEffet();
  else if (import_->NombreEleves() < TImportRegistre::kElevesMinimum)
    DefinirFichier(TNiveauEtat::Alerte, u"Fichier trop court : rien à transférer"_s);
  else
    DefinirFichier(TNiveauEtat::Alerte, kNonCloturee);
}

void TFrmImport::AnnoncerEffet() {
  effet_ = import_->Effet();
  const TGrille::TLot lot(Grille);
  for (int ligne = 0; ligne < Grille.NombreLignes(); ++ligne)
    Grille.ChangerEtat(ligne, Nouveau + static_cast<int>(effet_.Lignes[static_cast<std::size_t>(ligne)]));
  for (const TFicheRegistre& parti : effet_.Partis) Grille.Ajouter(Cellules(parti), nullptr, Parti);
  DefinirFichier(effet_.Nombre(TSortLigne::Illisible) > 0 ? TNiveauEtat::Alerte : TNiveauEtat::Succes,
                 fichier_.Texte);
}

QString TFrmImport::Effet() const {
  QStringList parties;
  const auto ajouter = [&](qsizetype nombre, const QString& un, const QString& plusieurs) {
    if (nombre > 0) parties += Compter(nombre, un, plusieurs);
  };
  for (const TMotEffet& mot : kMotsEffet) ajouter(effet_.Nombre(mot.Sort), mot.Un, mot.Plusieurs);
  ajouter(std::ssize(effet_.Partis), u"parti (en fin de liste)"_s, u"partis (en fin de liste)"_s);
  ajouter(effet_.SansSite.size(), u"sans implantation"_s, u"sans implantation"_s);
  return parties.join(u", "_s);
}

void TFrmImport::DireSansSite(const QStringList& sansSite) const {
  const qsizetype nombre = sansSite.size();
  if (nombre == 0) return;
  QString texte = Compter(nombre, u"élève importé n'a pas d'implantation :"_s,
                          u"élèves importés n'ont pas d'implantation :"_s) %
                  u'\n' % sansSite.mid(0, kNomsListes).join(u'\n');
  if (nombre > kNomsListes) texte += u"\net %1 de plus"_s.arg(nombre - kNomsListes);
  if (Globals.Eleves->PlusieursImplantations())
    texte += Accorder(nombre, u"\nIl n'apparaît pas dans la liste des élèves."_s,
                      u"\nIls n'apparaissent pas dans la liste des élèves."_s);
  contexte_.Dialogues().Information(texte);
}

void TFrmImport::DefinirFichier(TNiveauEtat niveau, const QString& texte) {
  fichier_ = {niveau, texte};
  contexte_.Principal.Etat(niveau, texte);
}

void TFrmImport::RemplirGrille() {
  const TGrille::TLot lot(Grille);
  Grille.Vider();
  for (int ligne = 1; ligne < import_->Grille().NombreLignes(); ++ligne)
    Grille.Ajouter(Cellules(import_->Fiche(ligne)));
  Annoncer();
}

void TFrmImport::btnEtape2Click() {
  if (!Etape2Active()) return;
  TBilanRegistre bilan;
  {
    const QScopedValueRollback enCours(enCours_, true);
    feuille_ = {};
    feuille_.Visible = true;
    feuille_.Titre = u"Transfert en cours"_s;
    feuille_.Note = u"La fenêtre reste ouverte jusqu'à la fin du transfert."_s;
    feuille_.Total = NombreEleves();
    {
      const TGrille::TLot lot(Grille);
      while (Grille.NombreLignes() > NombreEleves()) Grille.Retirer(Grille.NombreLignes() - 1);
      for (int ligne = 0; ligne < Grille.NombreLignes(); ++ligne) Grille.ChangerEtat(ligne, Attente);
    }
    PrendreEnMain(0);
    try {
      bilan = import_->Etape2();
    } catch (const Exception&) {
      enCours_ = false;
      Arreter();
      throw;
    }
    feuille_ = {};
  }
  DefinirFichier(TNiveauEtat::Succes,
                 QString(Compter(bilan.Lignes, u"élève transféré"_s, u"élèves transférés"_s) % u" : " %
                         Compter(bilan.Crees, u"nouveau"_s, u"nouveaux"_s) % u", " %
                         QString::number(bilan.Modifies) % u" mis à jour"));
  const QStringList sansSite = std::exchange(effet_, {}).SansSite;
  Annoncer();  // the band goes before what is left to say
  DireSansSite(sansSite);
}

// The rows of the file count its header, those of the grid do not.
void TFrmImport::SuivreLigne(int ligne) {
  Grille.ChangerEtat(ligne - 1, Transfere);
  PrendreEnMain(ligne);
}

void TFrmImport::PrendreEnMain(int ligne) {
  if (ligne < Grille.NombreLignes()) {
    Grille.ChangerEtat(ligne, EnCours);
    Grille.ChoisirLigne(ligne);
    feuille_.Fait = ligne + 1;
    feuille_.Nom = QString(Grille.Texte(ligne, Nom) % u' ' % Grille.Texte(ligne, Prenom));
  }
  contexte_.Principal.Etat(TNiveauEtat::Neutre,
                           u"Transfert en cours : %1 sur %2"_s.arg(feuille_.Fait).arg(feuille_.Total));
  Annoncer();
}

void TFrmImport::Arreter() {
  const int refusee = import_->LigneRefusee();
  for (int ligne = 0; ligne < Grille.NombreLignes(); ++ligne)
    if (Grille.Ligne(ligne).Etat == EnCours)
      Grille.ChangerEtat(ligne, ligne + 1 == refusee ? Refuse : Attente);
  feuille_.Arretee = true;
  feuille_.Titre =
      refusee > 0 ? u"Arrêté à la ligne %1"_s.arg(import_->NumeroLigne(refusee)) : u"Transfert arrêté"_s;
  feuille_.Note = u"Les élèves marqués « Transféré » sont enregistrés."_s;
  contexte_.Principal.Etat(TNiveauEtat::Erreur, feuille_.Titre);
  Annoncer();
}
