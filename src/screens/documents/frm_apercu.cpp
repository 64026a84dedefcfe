#include "screens/documents/frm_apercu.h"

#include <QElapsedTimer>
#include <QPageSize>
#include <QSet>
#include <algorithm>
#include <cmath>

#include "core/accord.h"
#include "core/exceptions.h"
#include "core/nom_fichier.h"
#include "documents/factures.h"
#include "documents/modeles.h"
#include "report/layout/papier_modele.h"
#include "report/output/pdf.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kZooms[] = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};
constexpr double kBordVue = 16.0;  ///< on each side of a page that is fitted
constexpr double kPixelsParMm = 96.0 / 25.4;

QString Largeur() { return u"Largeur"_s; }
QString PageEntiere() { return u"Page entière"_s; }
QString PourCent(double facteur) { return QString::number(std::lround(facteur * 100)) % u" %"; }

/// The pupils stand together by class, and there is more than one class: their bookmarks then stand
/// under it.
bool ClassesGroupees(const TRapport& rapport) {
  QSet<QString> vues;
  QString derniere;
  const auto& plat = rapport.Plat();
  for (int i = 0; i < static_cast<int>(plat.size()); ++i) {
    if (plat[static_cast<std::size_t>(i)].Niveau != 0) continue;
    const QString classe = rapport.Valeur(u"Classe", {i, 0}).value_or(QString());
    if (classe == derniere) continue;
    if (classe.isEmpty() || vues.contains(classe)) return false;
    vues += classe;
    derniere = classe;
  }
  return vues.size() > 1;
}

std::shared_ptr<const TModele> ModeleDe(const TRapport& rapport, const TReglagesPoste& reglages) {
  auto modele = ModeleDocument(rapport.Modele(), DossierModeles(reglages));
  if (!modele)
    throw Exception(
        u"Le document « %1 » n'a pas encore de modèle (« %2 »)."_s.arg(rapport.Titre(), rapport.Modele()));
  return modele;
}

/// The pupil of a document of one, or the class of one of a class; "" for more.
QString QuiEstDedans(const TRapport& rapport) {
  const auto valeur = [&](QStringView nom, int i) {
    return rapport.Valeur(nom, {i, 0}).value_or(QString()).trimmed();
  };
  int eleves = 0, premier = -1;
  QSet<QString> classes;
  const auto& plat = rapport.Plat();
  for (int i = 0; i < static_cast<int>(plat.size()); ++i) {
    if (plat[static_cast<std::size_t>(i)].Niveau != 0) continue;
    if (eleves++ == 0) premier = i;
    classes += valeur(u"Classe", i);
  }
  if (eleves == 1)
    if (const QString nom = valeur(u"NomEleve", premier) % u' ' % valeur(u"PrenomEleve", premier);
        !nom.trimmed().isEmpty())
      return nom.trimmed();
  return classes.size() == 1 ? *classes.begin() : QString();
}

/// "octobre 2016" of "du mois d'octobre 2016"; other periods as they are told.
QString QuandEstCe(const TRapport& rapport) {
  QString texte = rapport.Valeur(u"MoisReleve", {0, 0}).value_or(QString()).trimmed();
  for (const QString& debut : {u"Détails des services "_s, u"du mois de "_s, u"du mois d'"_s})
    if (texte.startsWith(debut)) texte.remove(0, debut.size());
  return texte;
}

}  // namespace

TFrmApercu::TFrmApercu(const TContexteApercu& contexte, const TRapport& rapport)
    : contexte_(contexte),
      rapport_(rapport),
      impression_{contexte.Horloge.Maintenant(), ClassesGroupees(rapport)},
      origine_(ModeleDe(rapport, contexte.Reglages)),
      modele_(origine_) {
  Commencer();
}

void TFrmApercu::Commencer() {
  Remettre();
  miseEnPage_ = std::make_unique<TMiseEnPage>(rapport_, *modele_, impression_);
  Continuer(0);
}

void TFrmApercu::Montrer(TDocumentPrepare document) {
  Remettre();
  modele_.reset();
  document_ = std::move(document);
  Suivre();
}

void TFrmApercu::Remettre() {
  miseEnPage_.reset();
  document_ = {};
  navigateur_.clear();
  pagesSuivies_ = signets_ = niveauSignets_ = page_ = 0;
  recherche_.Commencer({});
  choixAttendu_ = false;
  ++version_;
}

const TDocumentPrepare& TFrmApercu::Document() const {
  return miseEnPage_ ? miseEnPage_->Document() : document_;
}

bool TFrmApercu::Continuer(int millisecondes) {
  if (Complet()) return false;
  QElapsedTimer temps;
  temps.start();
  do {
    if (!miseEnPage_->Continuer()) {
      document_ = miseEnPage_->Prendre();
      miseEnPage_.reset();
      ++version_;  // totals of pages have come in
    }
  } while (!Complet() && temps.elapsed() < millisecondes);
  Suivre();
  return true;
}

void TFrmApercu::Terminer() {
  const TAttente attente(Dialogues());
  constexpr int kTranche = 200;
  while (Continuer(kTranche)) {
  }
}

int TFrmApercu::PagesPretes() const {
  const int pages = static_cast<int>(Document().Pages.size());
  return Complet() ? pages : std::max(pages - 1, 0);
}

/// Takes in what the new pages bring: entries of the navigator, places of the text looked for.
void TFrmApercu::Suivre() {
  const int pages = PagesPretes();
  for (; pagesSuivies_ < pages; ++pagesSuivies_)
    for (const TSignet& signet : Document().Pages[static_cast<std::size_t>(pagesSuivies_)].Signets) {
      navigateur_.push_back({signet.Texte, signet.Niveau, pagesSuivies_});
      // Documents are the entries of the lowest level, also in a saved report, whose classes nobody tells.
      if (signet.Niveau > niveauSignets_) signets_ = 0;
      niveauSignets_ = std::max(niveauSignets_, signet.Niveau);
      if (signet.Niveau == niveauSignets_) ++signets_;
    }
  if (Complet() && navigateur_.empty())
    for (int page = 0; page < pages; ++page)
      navigateur_.push_back({u"Page " % QString::number(page + 1), 0, page});
  recherche_.Avancer(Document(), pages);
  if (choixAttendu_ && !recherche_.Trouvailles().empty()) MontrerTrouvaille(recherche_.Choisir(page_));
  Annoncer();
}

QString TFrmApercu::TextePretes() const {
  const QString texte = Compter(PagesPretes(), u"page prête"_s, u"pages prêtes"_s);
  return Complet() ? texte : texte + u'…';
}

void TFrmApercu::AllerPage(int page) {
  page_ = std::clamp(page, 0, std::max(0, PagesPretes() - 1));
  SurMontrer(page_, {});
  Annoncer();
}

void TFrmApercu::PageVue(int page) {
  if (page == page_) return;
  page_ = page;
  Annoncer();
}

int TFrmApercu::EntreeCourante() const {
  const auto apres = std::ranges::upper_bound(navigateur_, page_, {}, &TEntreeNavigateur::Page);
  return static_cast<int>(apres - navigateur_.begin()) - 1;
}

void TFrmApercu::ChoisirEntree(int entree) {
  if (entree < 0 || entree >= static_cast<int>(navigateur_.size())) return;
  AllerPage(navigateur_[static_cast<std::size_t>(entree)].Page);
}

QString TFrmApercu::TitreNavigateur() const {
  const bool factures =
      modele_ != nullptr ? EstModeleFacture(rapport_.Modele()) : Document().Titre == u"Facture";
  const QString unite = factures ? u"facture"_s : u"document"_s;
  if (signets_ > 0) return Compter(signets_, unite, QString(unite % u's'));
  return Compter(PagesPretes(), u"page"_s, u"pages"_s);
}

void TFrmApercu::Zoomer(TModeZoom mode, double facteur) {
  modeZoom_ = mode;
  facteur_ = std::clamp(facteur, kZooms[0], kZooms[std::size(kZooms) - 1]);
  Annoncer();
  if (mode == TModeZoom::Page) SurMontrer(page_, {});
}

bool TFrmApercu::ZoomerTexte(const QString& texte) {
  const QString choix = texte.trimmed();
  if (choix.compare(Largeur(), Qt::CaseInsensitive) == 0) return Zoomer(TModeZoom::Largeur), true;
  if (choix.compare(PageEntiere(), Qt::CaseInsensitive) == 0) return Zoomer(TModeZoom::Page), true;
  bool lu = false;
  const int pourCent = QString(choix).remove(u'%').trimmed().toInt(&lu);
  if (!lu || pourCent <= 0) return false;
  Zoomer(TModeZoom::Facteur, pourCent / 100.0);
  return true;
}

QStringList TFrmApercu::ChoixZoom() {
  QStringList choix{Largeur(), PageEntiere()};
  for (const double zoom : kZooms) choix += PourCent(zoom);
  return choix;
}

QString TFrmApercu::TexteZoom() const { return PourCent(Echelle()); }

void TFrmApercu::ChangerVue(const QSizeF& vue) {
  if (vue == vue_) return;
  vue_ = vue;
  if (modeZoom_ != TModeZoom::Facteur) Annoncer();
}

double TFrmApercu::Echelle() const {
  const auto& pages = Document().Pages;
  if (modeZoom_ == TModeZoom::Facteur || pages.empty()) return facteur_;
  const TPagePreparee& page = pages[std::min(static_cast<std::size_t>(page_), pages.size() - 1)];
  const double largeur = (vue_.width() - 2 * kBordVue) / static_cast<double>(page.Largeur);
  const double hauteur = (vue_.height() - 2 * kBordVue) / static_cast<double>(page.Hauteur);
  constexpr double kMin = 0.1, kMax = 5.0;
  return std::clamp(modeZoom_ == TModeZoom::Largeur ? largeur : std::min(largeur, hauteur), kMin, kMax);
}

void TFrmApercu::ZoomVoisin(int sens) {
  constexpr double kEcart = 0.005;
  const double echelle = Echelle();
  const auto* fin = std::end(kZooms);
  const auto* apres = std::upper_bound(std::begin(kZooms), fin, echelle + kEcart);
  const auto* avant = std::lower_bound(std::begin(kZooms), fin, echelle - kEcart);
  if (sens > 0 && apres != fin) Zoomer(TModeZoom::Facteur, *apres);
  if (sens < 0 && avant != std::begin(kZooms)) Zoomer(TModeZoom::Facteur, *(avant - 1));
}

void TFrmApercu::Chercher(const QString& texte) {
  recherche_.Commencer(texte);
  recherche_.Avancer(Document(), PagesPretes());
  choixAttendu_ = !recherche_.Texte().isEmpty();
  MontrerTrouvaille(recherche_.Choisir(page_));
  Annoncer();
}

void TFrmApercu::ChercherSuivant(int sens) {
  MontrerTrouvaille(recherche_.Suivante(sens));
  Annoncer();
}

void TFrmApercu::MontrerTrouvaille(const TTrouvaille* trouvaille) {
  if (trouvaille == nullptr) return;
  choixAttendu_ = false;
  page_ = trouvaille->Page;
  SurMontrer(page_, trouvaille->Place);
}

QString TFrmApercu::TexteRecherche() const {
  if (recherche_.Texte().isEmpty()) return {};
  const int nombre = static_cast<int>(recherche_.Trouvailles().size());
  if (nombre == 0) return Complet() ? u"Introuvable"_s : u"Recherche…"_s;
  return QString::number(recherche_.Courante() + 1) % u" sur " % QString::number(nombre);
}

std::optional<QString> TFrmApercu::Demander(const QString& titre, const QString& extension,
                                            const QString& filtre) {
  QStringList parties{Document().Titre};
  if (modele_)  // a report that was opened from a file tells no more than its title
    parties << QuiEstDedans(rapport_) << QuandEstCe(rapport_);
  std::optional<QString> chemin =
      Dialogues().FichierAEnregistrer(titre, NomDeFichier(parties, extension), filtre);
  if (chemin && !chemin->endsWith(extension, Qt::CaseInsensitive)) *chemin += extension;
  return chemin;
}

void TFrmApercu::btnImprimerClick() {
  Terminer();
  QString imprimante;
  if (Essayer([&] { SurImprimer(document_, imprimante); }) && !imprimante.isEmpty())
    Sortir(u"Envoyé : " % imprimante);
}

void TFrmApercu::btnExporterClick() {
  const auto chemin = Demander(u"Exporter en PDF"_s, u".pdf"_s, u"PDF (*.pdf)"_s);
  if (!chemin) return;
  Terminer();
  if (Essayer([&] {
        EcrirePdf({&document_}, document_.Titre, Globals.Parametres->GetParametre(TParam::NomEcole), *chemin);
      }))
    Sortir(u"Exporté : " % *chemin);
}

void TFrmApercu::btnEnregistrerClick() {
  const auto chemin = Demander(u"Enregistrer le rapport"_s, u".rap"_s, u"Rapport (*.rap)"_s);
  if (!chemin) return;
  Terminer();
  if (Essayer([&] { document_.Enregistrer(*chemin); })) Dire(TNiveauEtat::Succes, u"Enregistré : " % *chemin);
}

void TFrmApercu::btnOuvrirClick() {
  const auto chemin = Dialogues().ChoisirFichier(u"Ouvrir un rapport"_s, u"Rapport (*.rap)"_s);
  if (!chemin) return;
  if (!Essayer([&] { Montrer(TDocumentPrepare::Ouvrir(*chemin)); })) return;
  AllerPage(0);
  Dire(TNiveauEtat::Succes, u"Ouvert : " % *chemin);
}

void TFrmApercu::btnFermerClick() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}

bool TFrmApercu::Essayer(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (const Exception& e) {
    Dire(TNiveauEtat::Erreur, u"Rien n'a été fait : "_s + e.Message.section(u'\n', 0, 0));
    Dialogues().Message(e.Message);
    return false;
  }
}

void TFrmApercu::Sortir(const QString& texte) {
  sorti_ = sorti_ || modele_ != nullptr;
  Dire(TNiveauEtat::Succes, texte);
}

void TFrmApercu::Dire(TNiveauEtat niveau, const QString& texte) {
  NiveauEtat = niveau;
  Etat = texte;
  Annoncer();
}

TPapier TFrmApercu::Papier() const {
  const auto& pages = Document().Pages;
  TPapier papier{{210, 297}};
  if (!pages.empty())
    papier.Taille =
        QSizeF(static_cast<double>(pages[0].Largeur), static_cast<double>(pages[0].Hauteur)) / kPixelsParMm;
  if (modele_ && !modele_->Pages.empty())
    papier.Marge = static_cast<double>(modele_->Pages[0].Marge) / kPixelsParMm;
  return papier;
}

void TFrmApercu::ChangerPapier(const TPapier& papier) {
  if (!PapierModifiable()) return;
  auto modele = std::make_shared<TModele>(*origine_);
  const auto pixels = [](double mm) { return std::round(static_cast<float>(mm * kPixelsParMm)); };
  MettreSurPapier(*modele,
                  {pixels(papier.Taille.width()), pixels(papier.Taille.height()), pixels(papier.Marge)});
  const int page = page_;
  miseEnPage_.reset();  // before the template that it walks
  modele_ = std::move(modele);
  Commencer();
  while (PagesPretes() <= page && Continuer()) {  // the page in hand stays in hand
  }
  AllerPage(page);
}

QString TFrmApercu::TextePapier() const {
  const QSizeF taille = Papier().Taille;
  const QPageSize format(taille, QPageSize::Millimeter, {}, QPageSize::FuzzyOrientationMatch);
  const QString nom = format.id() == QPageSize::Custom
                          ? QString::number(std::lround(taille.width())) % u" × " %
                                QString::number(std::lround(taille.height())) % u" mm"
                          : format.name();
  return nom % u", " % (taille.width() > taille.height() ? u"paysage"_s : u"portrait"_s);
}

QString TFrmApercu::TexteDefauts() const {
  return Compter(std::ssize(Document().Defauts), u"avertissement"_s, u"avertissements"_s, {});
}

QStringList TFrmApercu::Defauts() const {
  QStringList textes;
  for (const TDefaut& defaut : Document().Defauts) {
    QStringList ou;
    for (const QString& nom : {defaut.Bande, defaut.Objet})
      if (!nom.isEmpty()) ou += nom;
    textes += ou.isEmpty() ? defaut.Message : ou.join(u", "_s) % u" : " % defaut.Message;
  }
  return textes;
}
