// plain_picture FROM TO: the bare points of a picture as the screen takes them, part of the build.
// A picture that lies so in the program is shown unpacked, where it lies.
#include <QFile>
#include <QImage>
#include <cstdio>

int main(int count, char** words) {
  if (count != 3) return 2;
  const QImage picture =
      QImage(QString::fromLocal8Bit(words[1])).convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QFile points(QString::fromLocal8Bit(words[2]));
  if (!picture.isNull() && points.open(QFile::WriteOnly) &&
      points.write(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()) ==
          picture.sizeInBytes())
    return 0;
  std::fprintf(stderr, "plain_picture: %s\n", words[1]);
  return 1;
}
