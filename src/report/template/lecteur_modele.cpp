#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include "core/exceptions.h"
#include "report/template/attributs.h"
#include "report/template/verification.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTailleMaximum = 8 * 1024 * 1024;
constexpr int kImageMaximum = 4000;  // pixels a side
constexpr int kInclusionsImbriquees = 8;
constexpr int kInclusions = 200;  // of one template, all in all

constexpr std::pair<const char*, TSorteBande> kSortesBande[] = {
    {"entetePage", TSorteBande::EntetePage},
    {"piedPage", TSorteBande::PiedPage},
    {"maitre", TSorteBande::Maitre},
    {"detail", TSorteBande::Detail},
    {"sousDetail", TSorteBande::SousDetail},
    {"entete", TSorteBande::Entete},
    {"pied", TSorteBande::Pied},
    {"colonnes", TSorteBande::Colonnes},
    {"enteteColonnes", TSorteBande::EnteteColonnes},
    {"resume", TSorteBande::Resume}};

constexpr std::pair<const char*, TSorteObjet> kSortesObjet[] = {
    {"texte", TSorteObjet::Texte}, {"texteRiche", TSorteObjet::TexteRiche},
    {"trait", TSorteObjet::Trait}, {"cadre", TSorteObjet::Cadre},
    {"image", TSorteObjet::Image}, {"code", TSorteObjet::CodeBarres},
    {"qr", TSorteObjet::Qr},       {"sousRapport", TSorteObjet::SousRapport}};

constexpr std::pair<const char*, TAlignementTexte> kAlignements[] = {{"gauche", TAlignementTexte::Gauche},
                                                                     {"droite", TAlignementTexte::Droite},
                                                                     {"centre", TAlignementTexte::Centre},
                                                                     {"bloc", TAlignementTexte::Bloc}};

constexpr std::pair<const char*, TTypeCode> kTypesCode[] = {{"code39", TTypeCode::Code39},
                                                            {"codabar", TTypeCode::Codabar}};

constexpr std::pair<const char*, TFamille> kFamilles[] = {{"carlito", TFamille::Carlito},
                                                          {"mono", TFamille::LiberationMono}};

struct TFichierModele {
  QString nom;  // for messages
  QByteArray octets;
};

/// No folder, and nothing hidden.
bool EstNomSimple(const QString& nom) {
  return !nom.isEmpty() && !nom.contains(u'/') && !nom.contains(u'\\') && !nom.startsWith(u'.');
}

TFichierModele OuvrirFichier(const QString& nom, const QString& dossier) {
  if (!EstNomSimple(nom)) throw Exception(u"« %1 » n'est pas un nom de modèle."_s.arg(nom));
  QStringList chemins;
  if (!dossier.isEmpty()) chemins += QDir(dossier).filePath(nom + u".xml"_s);
  chemins += u":/modeles/"_s + nom + u".xml"_s;
  for (const QString& chemin : chemins) {
    QFile fichier(chemin);
    if (!fichier.exists()) continue;
    if (fichier.size() > kTailleMaximum) throw Exception(u"Le modèle « %1 » est trop grand."_s.arg(chemin));
    if (!fichier.open(QIODevice::ReadOnly))
      throw Exception(u"Le modèle « %1 » ne peut pas être lu : %2"_s.arg(chemin, fichier.errorString()));
    return {chemin.startsWith(u':') ? nom + u".xml"_s : chemin, fichier.readAll()};
  }
  throw Exception(u"Le modèle « %1 » n'existe pas."_s.arg(nom));
}

/// Reads one file, and those that it includes, into a template.
class TLecteurModele {
 public:
  /// `inclusions` counts those of the whole template.
  TLecteurModele(TModele& modele, TFichierModele fichier, QString dossier, int profondeur, int& inclusions)
      : modele_(modele),
        fichier_(std::move(fichier)),
        dossier_(std::move(dossier)),
        profondeur_(profondeur),
        inclusions_(inclusions),
        xml_(fichier_.octets) {}

  void LireRacineModele() {
    Racine("modele");
    TAttributs attributs = Attributs();
    modele_.Nom = attributs.Texte("nom");
    modele_.Fichier = fichier_.nom;
    attributs.Finir();
    LireContenuModele();
    VerifierModele(modele_);
  }
  /// A part that templates share: its content goes where it is included.
  void LirePartie(TPageModele* page, TBandeModele* bande) {
    Racine("partie");
    Attributs().Finir();
    if (bande != nullptr)
      LireContenuBande(*page, *bande);
    else if (page != nullptr)
      LireContenuPage(*page);
    else
      LireContenuModele();
    while (!xml_.atEnd()) Avancer();
  }

 private:
  [[noreturn]] void Refuser(const QString& raison, qint64 ligne = 0) const {
    throw Exception(
        u"%1, ligne %2 : %3."_s.arg(fichier_.nom).arg(ligne > 0 ? ligne : xml_.lineNumber()).arg(raison));
  }
  TAttributs Attributs() const {
    return TAttributs(xml_, [this](const QString& raison) { Refuser(raison); });
  }

  void Avancer() {
    xml_.readNext();
    if (xml_.hasError()) Refuser(u"le texte n'est pas du XML correct (%1)"_s.arg(xml_.errorString()));
    if (xml_.isDTD()) Refuser(u"une déclaration de type n'a pas sa place dans un modèle"_s);
  }
  void Racine(const char* nom) {
    while (!xml_.isStartElement()) Avancer();
    if (xml_.name() != QLatin1String(nom))
      Refuser(u"« %1 » est attendu, et non « %2 »"_s.arg(QLatin1String(nom), xml_.name()));
  }
  /// Goes to the next child element; false at the end of the parent. Text between elements is refused.
  bool Enfant() {
    for (;;) {
      Avancer();
      if (xml_.isStartElement()) return true;
      if (xml_.isEndElement()) return false;
      if (xml_.isCharacters() && !xml_.isWhitespace())
        Refuser(u"le texte « %1 » n'a pas sa place ici"_s.arg(xml_.text().trimmed().left(40)));
    }
  }
  QString Contenu() {
    QString texte;
    for (;;) {
      Avancer();
      if (xml_.isEndElement()) return texte;
      if (xml_.isStartElement()) Refuser(u"« %1 » n'a pas sa place ici"_s.arg(xml_.name()));
      if (xml_.isCharacters()) texte += xml_.text();
    }
  }

  void Inclure(TPageModele* page, TBandeModele* bande) {
    TAttributs attributs = Attributs();
    const QString nom = attributs.Texte("modele");
    attributs.Finir();
    if (profondeur_ >= kInclusionsImbriquees || ++inclusions_ > kInclusions)
      Refuser(u"trop de modèles s'incluent l'un l'autre"_s);
    const qint64 ligne = xml_.lineNumber();
    if (!Contenu().trimmed().isEmpty()) Refuser(u"« inclure » est vide"_s);
    TFichierModele partie;
    try {
      partie = OuvrirFichier(nom, dossier_);
    } catch (const Exception& e) {
      Refuser(e.Message.chopped(1), ligne);
    }
    TLecteurModele(modele_, std::move(partie), dossier_, profondeur_ + 1, inclusions_)
        .LirePartie(page, bande);
  }

  void LireContenuModele() {
    while (Enfant()) {
      if (xml_.name() == u"script")
        LireScript();
      else if (xml_.name() == u"page")
        LirePage();
      else if (xml_.name() == u"inclure")
        Inclure(nullptr, nullptr);
      else
        Refuser(u"« %1 » n'a pas sa place dans un modèle"_s.arg(xml_.name()));
    }
  }

  void LireScript() {
    Attributs().Finir();
    const auto ligne = static_cast<int>(xml_.lineNumber());
    const QString texte = Contenu();
    try {
      if (!modele_.Script) modele_.Script = TScript::Lire({});
      modele_.Script->Ajouter(texte, ligne, fichier_.nom);
    } catch (const EScript& e) {
      throw Exception(u"%1, %2"_s.arg(fichier_.nom, e.Message));
    }
  }

  void LirePage() {
    TPageModele page;
    TAttributs a = Attributs();
    page.Nom = a.Texte("nom");
    page.Largeur = a.Nombre("largeur", page.Largeur);
    page.Hauteur = a.Nombre("hauteur", page.Hauteur);
    page.Marge = a.Nombre("marge", page.Marge);
    page.SousRapport = a.OuiNon("sousRapport", false);
    a.Finir();
    if (page.Largeur <= 2 * page.Marge || page.Hauteur <= 2 * page.Marge || page.Marge < 0)
      Refuser(u"la page n'a pas de place entre ses marges"_s);
    LireContenuPage(page);
    modele_.Pages.push_back(std::move(page));
  }

  void LireContenuPage(TPageModele& page) {
    while (Enfant()) {
      if (xml_.name() == u"bande")
        LireBande(page);
      else if (xml_.name() == u"inclure")
        Inclure(&page, nullptr);
      else if (xml_.name() == u"script")
        LireScript();
      else
        Refuser(u"« %1 » n'a pas sa place dans une page"_s.arg(xml_.name()));
    }
  }

  void LireBande(TPageModele& page) {
    TBandeModele bande;
    TAttributs a = Attributs();
    bande.Fichier = fichier_.nom;
    bande.Ligne = static_cast<int>(xml_.lineNumber());
    bande.Sorte = a.Choix("sorte", kSortesBande, true);
    bande.Nom = a.Texte("nom");
    bande.Hauteur = a.Nombre("hauteur", 0);
    bande.Visible = a.OuiNon("visible", true);
    bande.NouvellePage = a.OuiNon("nouvellePage", false);
    bande.ImprimerSiVide = a.OuiNon("imprimerSiVide", false);
    bande.GarderEnsemble = a.OuiNon("garderEnsemble", false);
    bande.GarderEnfant = a.OuiNon("garderEnfant", false);
    bande.Repeter = a.OuiNon("repeter", false);
    bande.Etirable = a.OuiNon("etirable", false);
    bande.DernierePage = a.OuiNon("dernierePage", false);
    bande.PremierePageSans = a.OuiNon("premierePageSans", false);
    bande.Colonnes = a.Entier("colonnes", 1);
    bande.LargeurColonne = a.Nombre("largeurColonne", 0);
    bande.ColonnesMin = a.Entier("colonnesMin", bande.ColonnesMin);
    bande.ColonnesMax = a.Entier("colonnesMax", bande.ColonnesMax);
    bande.Jeu = a.Texte("jeu");
    bande.AvantImpression = a.Texte("avantImpression");
    bande.Signet = a.Texte("signet");
    bande.NiveauSignet = a.Entier("niveauSignet", 0);
    a.Finir();
    if (bande.Nom.isEmpty()) Refuser(u"une bande porte un nom"_s);
    if (bande.Hauteur < 0 || bande.Hauteur > page.Hauteur - 2 * page.Marge)
      Refuser(u"la bande « %1 » est plus haute que la page"_s.arg(bande.Nom));
    if (bande.Colonnes < 1 || bande.Colonnes > 20 || (bande.Colonnes > 1 && bande.LargeurColonne <= 0))
      Refuser(u"les colonnes de la bande « %1 » ne sont pas décrites"_s.arg(bande.Nom));
    LireContenuBande(page, bande);
    page.Bandes.push_back(std::move(bande));
  }

  void LireContenuBande(TPageModele& page, TBandeModele& bande) {
    while (Enfant()) {
      if (xml_.name() == u"inclure")
        Inclure(&page, &bande);
      else
        LireObjet(bande);
    }
  }

  void LireObjet(TBandeModele& bande) {
    TObjetModele objet;
    bool connu = false;
    for (const auto& [nom, sorte] : kSortesObjet) {
      if (xml_.name() != QLatin1String(nom)) continue;
      objet.Sorte = sorte;
      connu = true;
    }
    if (!connu) Refuser(u"« %1 » n'a pas sa place dans une bande"_s.arg(xml_.name()));
    TAttributs a = Attributs();
    objet.Fichier = fichier_.nom;
    objet.Ligne = static_cast<int>(xml_.lineNumber());
    objet.Nom = a.Texte("nom");
    objet.X = a.Nombre("x", 0);
    objet.Y = a.Nombre("y", 0);
    objet.Largeur = a.Nombre("largeur", 0);
    objet.Hauteur = a.Nombre("hauteur", 0);
    objet.Visible = a.OuiNon("visible", true);
    objet.AvantImpression = a.Texte("avantImpression");
    objet.SousLaBande = a.OuiNon("sousLaBande", false);
    objet.Couleur = a.Couleur("couleur", objet.Couleur);
    LireTrace(objet, a);
    const QString image = LireSelonSorte(objet, a);
    a.Finir();
    objet.Texte = Contenu();
    if (objet.Sorte == TSorteObjet::Image) LireImage(objet, image);
    if (objet.Largeur < 0 || objet.Hauteur < 0) Refuser(u"un objet n'a pas de taille négative"_s);
    bande.Objets.push_back(std::move(objet));
  }

  void LireTrace(TObjetModele& objet, TAttributs& a) const {
    if (objet.Sorte != TSorteObjet::Trait && objet.Sorte != TSorteObjet::Cadre) return;
    objet.Epaisseur = a.Nombre("epaisseur", 1);
    if (objet.Sorte == TSorteObjet::Trait) objet.Tiret = a.Nombre("tiret", 0);
    if (objet.Sorte == TSorteObjet::Cadre) {
      objet.Etirable = a.OuiNon("etirable", false);
      objet.Fond = a.Couleur("fond", 0);
      objet.FondBas = a.Couleur("fondBas", 0);
    }
  }

  /// The attributes that only some kinds have; the name of a picture's file.
  QString LireSelonSorte(TObjetModele& objet, TAttributs& a) const {
    switch (objet.Sorte) {
      case TSorteObjet::Texte:
      case TSorteObjet::TexteRiche:
        objet.Style.Famille = a.Choix("police", kFamilles);
        objet.Style.Taille = a.Nombre("taille", objet.Style.Taille);
        objet.Style.Gras = a.OuiNon("gras", false);
        objet.Style.Italique = a.OuiNon("italique", false);
        objet.Souligne = a.OuiNon("souligne", false);
        objet.Alignement = a.Choix("alignement", kAlignements);
        objet.Etirable = a.OuiNon("etirable", false);
        objet.Balises = a.OuiNon("balises", false);
        objet.Interligne = a.Nombre("interligne", 0);
        objet.GroupeAjuste = a.Texte("groupeAjuste");
        if (objet.Style.Taille < 1 || objet.Style.Taille > 400)
          Refuser(u"la taille des lettres va de 1 à 400"_s);
        return {};
      case TSorteObjet::CodeBarres:
        objet.TypeCode = a.Choix("type", kTypesCode);
        objet.Alignement = a.Choix("alignement", kAlignements);
        objet.Module = a.Nombre("module", objet.Module);
        return {};
      case TSorteObjet::Image:
        objet.Alignement = a.Choix("alignement", kAlignements);
        return a.Texte("fichier");
      default:
        return {};
    }
  }

  /// A picture stands in the file as base64, or beside the template under its name.
  void LireImage(TObjetModele& objet, const QString& nom) const {
    QByteArray octets = QByteArray::fromBase64(objet.Texte.toLatin1());
    objet.Texte.clear();
    if (!nom.isEmpty()) {
      if (!EstNomSimple(nom)) Refuser(u"« %1 » n'est pas un nom d'image"_s.arg(nom), objet.Ligne);
      QFile fichier(QDir(dossier_).filePath(nom));
      if (dossier_.isEmpty() || !fichier.exists()) fichier.setFileName(u":/modeles/"_s + nom);
      if (!fichier.exists()) Refuser(u"l'image « %1 » manque"_s.arg(nom), objet.Ligne);
      if (fichier.size() > kTailleMaximum || !fichier.open(QIODevice::ReadOnly))
        Refuser(u"l'image « %1 » ne peut pas être lue"_s.arg(nom), objet.Ligne);
      octets = fichier.readAll();
    }
    if (octets.isEmpty()) return;  // a place for a picture that the program gives
    auto image = std::make_shared<QImage>();
    if (!image->loadFromData(octets) || image->width() > kImageMaximum || image->height() > kImageMaximum)
      Refuser(u"l'image ne peut pas être lue"_s, objet.Ligne);
    objet.Image = std::move(image);
  }

  TModele& modele_;
  const TFichierModele fichier_;
  const QString dossier_;
  const int profondeur_;
  int& inclusions_;
  QXmlStreamReader xml_;
};

}  // namespace

TModele LireModele(const QByteArray& xml, const QString& fichier, const QString& dossier) {
  TModele modele;
  int inclusions = 0;
  TLecteurModele(modele, {fichier, xml}, dossier, 0, inclusions).LireRacineModele();
  return modele;
}

std::shared_ptr<const TModele> ChargerModele(const QString& nom, const QString& dossier) {
  const TFichierModele fichier = OuvrirFichier(nom, dossier);
  return std::make_shared<const TModele>(LireModele(fichier.octets, fichier.nom, dossier));
}
