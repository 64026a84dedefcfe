#include "pupils/photo.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

#include <jerror.h>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPixelsMax = 50'000'000;
constexpr int kQualite = 90;

/// libjpeg reports through this structure and must not be returned to after an error: the error
/// jumps back into the operation that called it, which then answers false.
struct TErreurJpeg {
  jpeg_error_mgr base;  // first: libjpeg knows the address of this field only
  std::jmp_buf retour;
};

[[noreturn]] void SurErreur(j_common_ptr jpeg) {
  std::longjmp(reinterpret_cast<TErreurJpeg*>(jpeg->err)->retour, 1);
}

/// A missing end is damage; the other warnings are of pictures that can be seen.
void SurMessage(j_common_ptr jpeg, int niveau) {
  if (niveau < 0 && jpeg->err->msg_code == JWRN_JPEG_EOF) SurErreur(jpeg);
}

void Brancher(TErreurJpeg& erreur) {
  jpeg_std_error(&erreur.base);
  erreur.base.error_exit = SurErreur;
  erreur.base.emit_message = SurMessage;
}

// In what follows, an operation that calls `setjmp` holds no object with a destructor.

class TLecteurJpeg {
 public:
  explicit TLecteurJpeg(const QByteArray& octets) : octets_(octets) {
    Brancher(erreur_);
    jpeg_.err = &erreur_.base;
  }
  ~TLecteurJpeg() { jpeg_destroy_decompress(&jpeg_); }
  TLecteurJpeg(const TLecteurJpeg&) = delete;
  TLecteurJpeg& operator=(const TLecteurJpeg&) = delete;

  bool LireEntete() {
    if (setjmp(erreur_.retour) != 0) return false;
    jpeg_create_decompress(&jpeg_);
    jpeg_mem_src(&jpeg_, reinterpret_cast<const unsigned char*>(octets_.constData()),
                 static_cast<unsigned long>(octets_.size()));
    jpeg_read_header(&jpeg_, TRUE);
    jpeg_.out_color_space = JCS_RGB;
    return true;
  }

  /// Three bytes a pixel, `pas` bytes a row.
  bool LirePixels(uchar* pixels, qsizetype pas) {
    if (setjmp(erreur_.retour) != 0) return false;
    jpeg_start_decompress(&jpeg_);
    while (jpeg_.output_scanline < jpeg_.output_height) {
      JSAMPROW rangee = pixels + static_cast<qsizetype>(jpeg_.output_scanline) * pas;
      jpeg_read_scanlines(&jpeg_, &rangee, 1);
    }
    jpeg_finish_decompress(&jpeg_);
    return true;
  }

  qint64 Largeur() const { return jpeg_.image_width; }
  qint64 Hauteur() const { return jpeg_.image_height; }

 private:
  const QByteArray& octets_;
  TErreurJpeg erreur_{};
  jpeg_decompress_struct jpeg_{};
};

class TEcrivainJpeg {
 public:
  TEcrivainJpeg() {
    Brancher(erreur_);
    jpeg_.err = &erreur_.base;
  }
  ~TEcrivainJpeg() {
    jpeg_destroy_compress(&jpeg_);
    std::free(octets_);  // NOLINT: libjpeg allocates it so
  }
  TEcrivainJpeg(const TEcrivainJpeg&) = delete;
  TEcrivainJpeg& operator=(const TEcrivainJpeg&) = delete;

  /// Three bytes a pixel, `pas` bytes a row.
  bool Ecrire(const uchar* pixels, int largeur, int hauteur, qsizetype pas) {
    if (setjmp(erreur_.retour) != 0) return false;
    jpeg_create_compress(&jpeg_);
    jpeg_mem_dest(&jpeg_, &octets_, &taille_);
    jpeg_.image_width = static_cast<JDIMENSION>(largeur);
    jpeg_.image_height = static_cast<JDIMENSION>(hauteur);
    jpeg_.input_components = 3;
    jpeg_.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg_);
    jpeg_set_quality(&jpeg_, kQualite, TRUE);
    jpeg_start_compress(&jpeg_, TRUE);
    while (jpeg_.next_scanline < jpeg_.image_height) {
      auto* rangee = const_cast<JSAMPROW>(pixels + static_cast<qsizetype>(jpeg_.next_scanline) * pas);
      jpeg_write_scanlines(&jpeg_, &rangee, 1);
    }
    jpeg_finish_compress(&jpeg_);
    return true;
  }

  QByteArray Octets() const {
    return QByteArray(reinterpret_cast<const char*>(octets_), static_cast<qsizetype>(taille_));
  }

 private:
  TErreurJpeg erreur_{};
  jpeg_compress_struct jpeg_{};
  unsigned char* octets_ = nullptr;
  unsigned long taille_ = 0;
};

[[noreturn]] void Abimee() {
  throw Exception(u"La photo enregistrée est abîmée et ne peut pas être affichée."_s);
}

void RefuserTropGrande(qint64 largeur, qint64 hauteur) {
  if (largeur * hauteur > kPixelsMax)
    throw Exception(u"La photo est trop grande (%1 x %2 points)."_s.arg(largeur).arg(hauteur));
}

}  // namespace

QImage DecoderJpeg(const QByteArray& octets) {
  TLecteurJpeg lecteur(octets);
  if (octets.isEmpty() || !lecteur.LireEntete()) Abimee();
  RefuserTropGrande(lecteur.Largeur(), lecteur.Hauteur());
  QImage image(static_cast<int>(lecteur.Largeur()), static_cast<int>(lecteur.Hauteur()),
               QImage::Format_RGB888);
  if (image.isNull() || !lecteur.LirePixels(image.bits(), image.bytesPerLine())) Abimee();
  return image;
}

QByteArray EncoderJpeg(const QImage& image) {
  RefuserTropGrande(image.width(), image.height());
  const QImage pixels = image.convertToFormat(QImage::Format_RGB888);
  TEcrivainJpeg ecrivain;
  if (pixels.isNull() ||
      !ecrivain.Ecrire(pixels.constBits(), pixels.width(), pixels.height(), pixels.bytesPerLine()))
    throw Exception(u"Cette image ne peut pas être enregistrée comme photo."_s);
  return ecrivain.Octets();
}
