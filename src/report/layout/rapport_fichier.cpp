#include <QFile>
#include <bit>
#include <cmath>
#include <cstring>
#include <unordered_map>

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "report/compression.h"
#include "report/layout/document_prepare.h"

using namespace Qt::StringLiterals;

// A saved report: mark, version, size, then one compressed body. Numbers are little-endian, as every
// processor that the program runs on has them. Runs are kept as text and style and shaped again when the
// file is opened, so that another version of a font does no harm.

namespace {

constexpr std::string_view kMarque = "CALPRAP";
constexpr char kVersion = 1;
constexpr qsizetype kEntete = 12;
/// No report comes near; a file that says so is none.
constexpr std::uint32_t kTailleMax = 128U << 20;
constexpr std::uint32_t kTexteMax = 100'000;
constexpr float kLongueurMax = 100'000.0F;  ///< px
constexpr float kPageMax = 5'000.0F;        ///< px

[[noreturn]] void Refuser() {
  throw Exception(u"Ce fichier n'est pas un rapport enregistré, ou il est abîmé."_s);
}

template <class T>
T Lu(const char* octets) {
  T valeur;
  std::memcpy(&valeur, octets, sizeof valeur);
  return valeur;
}

class TEcrivain {
 public:
  template <class T>
  requires std::is_arithmetic_v<T>
  void Valeur(T valeur) { Octets_.append(reinterpret_cast<const char*>(&valeur), sizeof valeur); }
  void Nombre(std::size_t nombre) { Valeur(static_cast<std::uint32_t>(nombre)); }
  void Texte(const QString& texte) {
    Nombre(static_cast<std::size_t>(texte.size()));
    Bruts(texte.constData(), static_cast<std::size_t>(texte.size()) * sizeof(QChar));
  }
  void Bruts(const void* octets, std::size_t nombre) {
    Octets_.append(static_cast<const char*>(octets), nombre);
  }
  void Place(const QRectF& place) {
    for (const qreal cote : {place.x(), place.y(), place.width(), place.height()})
      Valeur(static_cast<float>(cote));
  }
  const std::string& Octets() const { return Octets_; }

 private:
  std::string Octets_;
};

class TLecteur {
 public:
  explicit TLecteur(const QByteArray& octets) : octets_(octets) {}

  template <class T>
  T Valeur() {
    return Lu<T>(Bruts(sizeof(T)));
  }
  /// How many things follow, each at least `taille` octets long.
  std::size_t Nombre(qsizetype taille) {
    const auto nombre = Valeur<std::uint32_t>();
    if (nombre > (octets_.size() - place_) / taille) Refuser();
    return nombre;
  }
  std::size_t Indice(std::size_t nombre) {
    const auto indice = Valeur<std::uint32_t>();
    if (indice >= nombre) Refuser();
    return indice;
  }
  float Longueur(float max = kLongueurMax) {
    const auto longueur = Valeur<float>();
    if (!(std::abs(longueur) <= max)) Refuser();  // what is no number neither
    return longueur;
  }
  QString Texte() {
    const auto taille = static_cast<qsizetype>(Nombre(sizeof(QChar)));
    if (taille > kTexteMax) Refuser();
    QString texte(taille, Qt::Uninitialized);
    std::memcpy(texte.data(), Bruts(taille * 2), static_cast<std::size_t>(taille) * 2);
    return texte;
  }
  QRectF Place() {
    float cotes[4];
    for (float& cote : cotes) cote = Longueur();
    return {static_cast<qreal>(cotes[0]), static_cast<qreal>(cotes[1]), static_cast<qreal>(cotes[2]),
            static_cast<qreal>(cotes[3])};
  }
  const char* Bruts(qsizetype nombre) {
    if (nombre < 0 || nombre > octets_.size() - place_) Refuser();
    const char* debut = octets_.constData() + place_;
    place_ += nombre;
    return debut;
  }
  bool Fini() const { return place_ == octets_.size(); }

 private:
  const QByteArray& octets_;
  qsizetype place_ = 0;
};

/// A run is told by its place, a picture by its content, of which there may be many copies.
const TTexteForme* Identite(const TTexteForme& forme) { return &forme; }
qint64 Identite(const QImage& image) { return image.cacheKey(); }

/// Runs and pictures that elements share, each written once.
template <class T>
class TTable {
 public:
  std::uint32_t Indice(const T& objet) {
    const auto [place, nouveau] =
        indices_.try_emplace(Identite(objet), static_cast<std::uint32_t>(Objets.size()));
    if (nouveau) Objets.push_back(&objet);
    return place->second;
  }
  std::vector<const T*> Objets;

 private:
  std::unordered_map<decltype(Identite(std::declval<const T&>())), std::uint32_t> indices_;
};

// ---- writing

class TCorps {
 public:
  std::string Octets(const TDocumentPrepare& document) {
    for (const TPagePreparee& page : document.Pages) Page(page);
    TEcrivain tete;
    tete.Texte(document.Titre);
    tete.Nombre(document.Defauts.size());
    for (const TDefaut& defaut : document.Defauts)
      for (const QString* texte : {&defaut.Bande, &defaut.Objet, &defaut.Message}) tete.Texte(*texte);
    tete.Nombre(formes_.Objets.size());
    for (const TTexteForme* forme : formes_.Objets) Forme(tete, *forme);
    tete.Nombre(images_.Objets.size());
    for (const QImage* image : images_.Objets) Image(tete, *image);
    tete.Nombre(document.Pages.size());
    return tete.Octets() + pages_.Octets();
  }

 private:
  static void Forme(TEcrivain& sortie, const TTexteForme& forme) {
    sortie.Valeur(static_cast<std::uint8_t>(forme.Style.Famille));
    sortie.Valeur(static_cast<std::uint8_t>((forme.Style.Gras ? 1 : 0) | (forme.Style.Italique ? 2 : 0)));
    sortie.Valeur(forme.Style.Taille);
    sortie.Texte(forme.Texte);
  }
  static void Image(TEcrivain& sortie, const QImage& image) {
    const bool alpha = image.hasAlphaChannel();
    const QImage points = image.convertToFormat(alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    sortie.Nombre(static_cast<std::size_t>(points.width()));
    sortie.Nombre(static_cast<std::size_t>(points.height()));
    sortie.Valeur(static_cast<std::uint8_t>(alpha));
    sortie.Bruts(points.constBits(), static_cast<std::size_t>(points.sizeInBytes()));
  }
  void Page(const TPagePreparee& page) {
    pages_.Valeur(page.Largeur);
    pages_.Valeur(page.Hauteur);
    pages_.Nombre(page.Signets.size());
    for (const TSignet& signet : page.Signets) {
      pages_.Texte(signet.Texte);
      pages_.Valeur(static_cast<std::uint8_t>(signet.Niveau));
    }
    pages_.Nombre(page.Elements.size());
    for (const TElement& element : page.Elements) {
      pages_.Valeur(static_cast<std::uint8_t>(element.index()));
      std::visit([this](const auto& e) { Element(e); }, element);
    }
  }
  void Element(const TElementTexte& e) {
    pages_.Valeur(formes_.Indice(*e.Forme));
    for (const float longueur : {e.X, e.Base}) pages_.Valeur(longueur);
    pages_.Valeur(e.Couleur);
    pages_.Valeur(static_cast<std::uint8_t>(e.Souligne));
  }
  void Element(const TElementTrait& e) {
    for (const float longueur : {e.X1, e.Y1, e.X2, e.Y2, e.Epaisseur, e.Tiret}) pages_.Valeur(longueur);
    pages_.Valeur(e.Couleur);
  }
  void Element(const TElementCadre& e) {
    pages_.Place(e.Place);
    pages_.Valeur(e.Epaisseur);
    for (const QRgb couleur : {e.Trait, e.Fond, e.FondBas}) pages_.Valeur(couleur);
  }
  void Element(const TElementImage& e) {
    pages_.Place(e.Place);
    pages_.Valeur(images_.Indice(*e.Image));
  }
  void Element(const TElementBarres& e) {
    pages_.Nombre(e.Barres.size());
    for (const QRectF& barre : e.Barres) pages_.Place(barre);
  }

  TTable<TTexteForme> formes_;
  TTable<QImage> images_;
  TEcrivain pages_;
};

// ---- reading

class TReconstruction {
 public:
  explicit TReconstruction(const QByteArray& corps) : lecteur_(corps) {}

  TDocumentPrepare Document() {
    TDocumentPrepare document;
    document.Titre = lecteur_.Texte();
    document.Defauts.resize(lecteur_.Nombre(12));
    for (TDefaut& defaut : document.Defauts)
      for (QString* texte : {&defaut.Bande, &defaut.Objet, &defaut.Message}) *texte = lecteur_.Texte();
    formes_.resize(lecteur_.Nombre(10));
    for (auto& forme : formes_) forme = Forme();
    images_.resize(lecteur_.Nombre(9));
    for (auto& image : images_) image = Image();
    document.Pages.resize(lecteur_.Nombre(16));
    for (TPagePreparee& page : document.Pages) Page(page);
    if (!lecteur_.Fini()) Refuser();
    return document;
  }

 private:
  std::shared_ptr<const TTexteForme> Forme() {
    TStyle style;
    const auto famille = lecteur_.Valeur<std::uint8_t>(), traits = lecteur_.Valeur<std::uint8_t>();
    if (famille > static_cast<std::uint8_t>(TFamille::LiberationMono) || traits > 3) Refuser();
    style.Famille = static_cast<TFamille>(famille);
    style.Gras = (traits & 1) != 0;
    style.Italique = (traits & 2) != 0;
    style.Taille = lecteur_.Longueur(1'000.0F);
    if (style.Taille <= 0) Refuser();
    return Former(lecteur_.Texte(), style);
  }
  std::shared_ptr<const QImage> Image() {
    const auto largeur = lecteur_.Valeur<std::uint32_t>(), hauteur = lecteur_.Valeur<std::uint32_t>();
    const bool alpha = lecteur_.Valeur<std::uint8_t>() != 0;
    if (largeur == 0 || largeur > 0x7FFF || hauteur == 0 || hauteur > 0x7FFF) Refuser();
    const char* points = lecteur_.Bruts(qsizetype{4} * largeur * hauteur);
    QImage image(static_cast<int>(largeur), static_cast<int>(hauteur),
                 alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (image.isNull()) throw std::bad_alloc();
    std::memcpy(image.bits(), points, static_cast<std::size_t>(image.sizeInBytes()));
    return std::make_shared<const QImage>(std::move(image));
  }
  void Page(TPagePreparee& page) {
    for (float* cote : {&page.Largeur, &page.Hauteur}) {
      *cote = lecteur_.Longueur(kPageMax);
      if (*cote < 1) Refuser();
    }
    page.Signets.resize(lecteur_.Nombre(5));
    for (TSignet& signet : page.Signets) {
      signet.Texte = lecteur_.Texte();
      signet.Niveau = lecteur_.Valeur<std::uint8_t>();
    }
    page.Elements.resize(lecteur_.Nombre(5));
    for (TElement& element : page.Elements) element = Element();
  }
  TElement Element() {
    switch (lecteur_.Valeur<std::uint8_t>()) {
      case 0:
        return Texte();
      case 1:
        return Trait();
      case 2:
        return Cadre();
      case 3: {
        const QRectF place = lecteur_.Place();
        return TElementImage{place, images_[lecteur_.Indice(images_.size())]};
      }
      case 4: {
        TElementBarres barres;
        barres.Barres.resize(lecteur_.Nombre(16));
        for (QRectF& barre : barres.Barres) barre = lecteur_.Place();
        return barres;
      }
      default:
        Refuser();
    }
  }
  TElementTexte Texte() {
    TElementTexte e;
    e.Forme = formes_[lecteur_.Indice(formes_.size())];
    for (float* longueur : {&e.X, &e.Base}) *longueur = lecteur_.Longueur();
    e.Couleur = lecteur_.Valeur<QRgb>();
    e.Souligne = lecteur_.Valeur<std::uint8_t>() != 0;
    return e;
  }
  TElementTrait Trait() {
    TElementTrait e;
    for (float* longueur : {&e.X1, &e.Y1, &e.X2, &e.Y2, &e.Epaisseur, &e.Tiret})
      *longueur = lecteur_.Longueur();
    e.Couleur = lecteur_.Valeur<QRgb>();
    return e;
  }
  TElementCadre Cadre() {
    TElementCadre e;
    e.Place = lecteur_.Place();
    e.Epaisseur = lecteur_.Longueur();
    for (QRgb* couleur : {&e.Trait, &e.Fond, &e.FondBas}) *couleur = lecteur_.Valeur<QRgb>();
    return e;
  }

  TLecteur lecteur_;
  std::vector<std::shared_ptr<const TTexteForme>> formes_;
  std::vector<std::shared_ptr<const QImage>> images_;
};

}  // namespace

static_assert(std::endian::native == std::endian::little);

QByteArray TDocumentPrepare::EnOctets() const {
  const std::string corps = TCorps().Octets(*this);
  if (corps.size() > kTailleMax) throw Exception(u"Ce rapport est trop grand pour être enregistré."_s);
  std::string octets(kMarque);
  octets += kVersion;
  const auto taille = static_cast<std::uint32_t>(corps.size());
  octets.append(reinterpret_cast<const char*>(&taille), sizeof taille);
  TCompresseur().Ajouter(corps, octets);
  return QByteArray(octets.data(), static_cast<qsizetype>(octets.size()));
}

TDocumentPrepare TDocumentPrepare::DepuisOctets(const QByteArray& octets) {
  const std::string_view tout(octets.constData(), static_cast<std::size_t>(octets.size()));
  if (octets.size() < kEntete || !tout.starts_with(kMarque)) Refuser();
  if (tout[kMarque.size()] != kVersion)
    throw Exception(u"Ce rapport a été enregistré par une autre version du programme."_s);
  const auto taille = Lu<std::uint32_t>(octets.constData() + kMarque.size() + 1);
  if (taille > kTailleMax) Refuser();
  const auto corps = Decompresser(tout.substr(kEntete), taille);
  if (!corps) Refuser();
  return TReconstruction(*corps).Document();
}

void TDocumentPrepare::Enregistrer(const QString& chemin) const { EcrireFichier(chemin, EnOctets()); }

TDocumentPrepare TDocumentPrepare::Ouvrir(const QString& chemin) {
  QFile fichier(chemin);
  if (!fichier.open(QIODevice::ReadOnly))
    throw Exception(u"Impossible de lire le fichier %1 : %2"_s.arg(chemin, fichier.errorString()));
  if (fichier.size() > kTailleMax) Refuser();
  return DepuisOctets(fichier.readAll());
}
