#include "ColorRamp.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace SysCarto {

namespace {

// clang-format off
// The numbers of ColorBrewer, and every thirty-second part of viridis, magma, inferno, plasma and cividis.
constexpr ColorRamp ramps[] = {
    {"Blues", RampKind::Sequential, 3, 9,
     "deebf79ecae13182bdeff3ffbdd7e76baed62171b5eff3ffbdd7e76baed63182bd08519ceff3ffc6dbef9ecae16baed6"
     "3182bd08519ceff3ffc6dbef9ecae16baed64292c62171b5084594f7fbffdeebf7c6dbef9ecae16baed64292c62171b5"
     "084594f7fbffdeebf7c6dbef9ecae16baed64292c62171b508519c08306b"},
    {"BuGn", RampKind::Sequential, 3, 9,
     "e5f5f999d8c92ca25fedf8fbb2e2e266c2a4238b45edf8fbb2e2e266c2a42ca25f006d2cedf8fbccece699d8c966c2a4"
     "2ca25f006d2cedf8fbccece699d8c966c2a441ae76238b45005824f7fcfde5f5f9ccece699d8c966c2a441ae76238b45"
     "005824f7fcfde5f5f9ccece699d8c966c2a441ae76238b45006d2c00441b"},
    {"BuPu", RampKind::Sequential, 3, 9,
     "e0ecf49ebcda8856a7edf8fbb3cde38c96c688419dedf8fbb3cde38c96c68856a7810f7cedf8fbbfd3e69ebcda8c96c6"
     "8856a7810f7cedf8fbbfd3e69ebcda8c96c68c6bb188419d6e016bf7fcfde0ecf4bfd3e69ebcda8c96c68c6bb188419d"
     "6e016bf7fcfde0ecf4bfd3e69ebcda8c96c68c6bb188419d810f7c4d004b"},
    {"GnBu", RampKind::Sequential, 3, 9,
     "e0f3dba8ddb543a2caf0f9e8bae4bc7bccc42b8cbef0f9e8bae4bc7bccc443a2ca0868acf0f9e8ccebc5a8ddb57bccc4"
     "43a2ca0868acf0f9e8ccebc5a8ddb57bccc44eb3d32b8cbe08589ef7fcf0e0f3dbccebc5a8ddb57bccc44eb3d32b8cbe"
     "08589ef7fcf0e0f3dbccebc5a8ddb57bccc44eb3d32b8cbe0868ac084081"},
    {"Greens", RampKind::Sequential, 3, 9,
     "e5f5e0a1d99b31a354edf8e9bae4b374c476238b45edf8e9bae4b374c47631a354006d2cedf8e9c7e9c0a1d99b74c476"
     "31a354006d2cedf8e9c7e9c0a1d99b74c47641ab5d238b45005a32f7fcf5e5f5e0c7e9c0a1d99b74c47641ab5d238b45"
     "005a32f7fcf5e5f5e0c7e9c0a1d99b74c47641ab5d238b45006d2c00441b"},
    {"Greys", RampKind::Sequential, 3, 9,
     "f0f0f0bdbdbd636363f7f7f7cccccc969696525252f7f7f7cccccc969696636363252525f7f7f7d9d9d9bdbdbd969696"
     "636363252525f7f7f7d9d9d9bdbdbd969696737373525252252525fffffff0f0f0d9d9d9bdbdbd969696737373525252"
     "252525fffffff0f0f0d9d9d9bdbdbd969696737373525252252525000000"},
    {"Oranges", RampKind::Sequential, 3, 9,
     "fee6cefdae6be6550dfeeddefdbe85fd8d3cd94701feeddefdbe85fd8d3ce6550da63603feeddefdd0a2fdae6bfd8d3c"
     "e6550da63603feeddefdd0a2fdae6bfd8d3cf16913d948018c2d04fff5ebfee6cefdd0a2fdae6bfd8d3cf16913d94801"
     "8c2d04fff5ebfee6cefdd0a2fdae6bfd8d3cf16913d94801a636037f2704"},
    {"OrRd", RampKind::Sequential, 3, 9,
     "fee8c8fdbb84e34a33fef0d9fdcc8afc8d59d7301ffef0d9fdcc8afc8d59e34a33b30000fef0d9fdd49efdbb84fc8d59"
     "e34a33b30000fef0d9fdd49efdbb84fc8d59ef6548d7301f990000fff7ecfee8c8fdd49efdbb84fc8d59ef6548d7301f"
     "990000fff7ecfee8c8fdd49efdbb84fc8d59ef6548d7301fb300007f0000"},
    {"PuBu", RampKind::Sequential, 3, 9,
     "ece7f2a6bddb2b8cbef1eef6bdc9e174a9cf0570b0f1eef6bdc9e174a9cf2b8cbe045a8df1eef6d0d1e6a6bddb74a9cf"
     "2b8cbe045a8df1eef6d0d1e6a6bddb74a9cf3690c00570b0034e7bfff7fbece7f2d0d1e6a6bddb74a9cf3690c00570b0"
     "034e7bfff7fbece7f2d0d1e6a6bddb74a9cf3690c00570b0045a8d023858"},
    {"PuBuGn", RampKind::Sequential, 3, 9,
     "ece2f0a6bddb1c9099f6eff7bdc9e167a9cf02818af6eff7bdc9e167a9cf1c9099016c59f6eff7d0d1e6a6bddb67a9cf"
     "1c9099016c59f6eff7d0d1e6a6bddb67a9cf3690c002818a016450fff7fbece2f0d0d1e6a6bddb67a9cf3690c002818a"
     "016450fff7fbece2f0d0d1e6a6bddb67a9cf3690c002818a016c59014636"},
    {"PuRd", RampKind::Sequential, 3, 9,
     "e7e1efc994c7dd1c77f1eef6d7b5d8df65b0ce1256f1eef6d7b5d8df65b0dd1c77980043f1eef6d4b9dac994c7df65b0"
     "dd1c77980043f1eef6d4b9dac994c7df65b0e7298ace125691003ff7f4f9e7e1efd4b9dac994c7df65b0e7298ace1256"
     "91003ff7f4f9e7e1efd4b9dac994c7df65b0e7298ace125698004367001f"},
    {"Purples", RampKind::Sequential, 3, 9,
     "efedf5bcbddc756bb1f2f0f7cbc9e29e9ac86a51a3f2f0f7cbc9e29e9ac8756bb154278ff2f0f7dadaebbcbddc9e9ac8"
     "756bb154278ff2f0f7dadaebbcbddc9e9ac8807dba6a51a34a1486fcfbfdefedf5dadaebbcbddc9e9ac8807dba6a51a3"
     "4a1486fcfbfdefedf5dadaebbcbddc9e9ac8807dba6a51a354278f3f007d"},
    {"RdPu", RampKind::Sequential, 3, 9,
     "fde0ddfa9fb5c51b8afeebe2fbb4b9f768a1ae017efeebe2fbb4b9f768a1c51b8a7a0177feebe2fcc5c0fa9fb5f768a1"
     "c51b8a7a0177feebe2fcc5c0fa9fb5f768a1dd3497ae017e7a0177fff7f3fde0ddfcc5c0fa9fb5f768a1dd3497ae017e"
     "7a0177fff7f3fde0ddfcc5c0fa9fb5f768a1dd3497ae017e7a017749006a"},
    {"Reds", RampKind::Sequential, 3, 9,
     "fee0d2fc9272de2d26fee5d9fcae91fb6a4acb181dfee5d9fcae91fb6a4ade2d26a50f15fee5d9fcbba1fc9272fb6a4a"
     "de2d26a50f15fee5d9fcbba1fc9272fb6a4aef3b2ccb181d99000dfff5f0fee0d2fcbba1fc9272fb6a4aef3b2ccb181d"
     "99000dfff5f0fee0d2fcbba1fc9272fb6a4aef3b2ccb181da50f1567000d"},
    {"YlGn", RampKind::Sequential, 3, 9,
     "f7fcb9addd8e31a354ffffccc2e69978c679238443ffffccc2e69978c67931a354006837ffffccd9f0a3addd8e78c679"
     "31a354006837ffffccd9f0a3addd8e78c67941ab5d238443005a32ffffe5f7fcb9d9f0a3addd8e78c67941ab5d238443"
     "005a32ffffe5f7fcb9d9f0a3addd8e78c67941ab5d238443006837004529"},
    {"YlGnBu", RampKind::Sequential, 3, 9,
     "edf8b17fcdbb2c7fb8ffffcca1dab441b6c4225ea8ffffcca1dab441b6c42c7fb8253494ffffccc7e9b47fcdbb41b6c4"
     "2c7fb8253494ffffccc7e9b47fcdbb41b6c41d91c0225ea80c2c84ffffd9edf8b1c7e9b47fcdbb41b6c41d91c0225ea8"
     "0c2c84ffffd9edf8b1c7e9b47fcdbb41b6c41d91c0225ea8253494081d58"},
    {"YlOrBr", RampKind::Sequential, 3, 9,
     "fff7bcfec44fd95f0effffd4fed98efe9929cc4c02ffffd4fed98efe9929d95f0e993404ffffd4fee391fec44ffe9929"
     "d95f0e993404ffffd4fee391fec44ffe9929ec7014cc4c028c2d04ffffe5fff7bcfee391fec44ffe9929ec7014cc4c02"
     "8c2d04ffffe5fff7bcfee391fec44ffe9929ec7014cc4c02993404662506"},
    {"YlOrRd", RampKind::Sequential, 3, 9,
     "ffeda0feb24cf03b20ffffb2fecc5cfd8d3ce31a1cffffb2fecc5cfd8d3cf03b20bd0026ffffb2fed976feb24cfd8d3c"
     "f03b20bd0026ffffb2fed976feb24cfd8d3cfc4e2ae31a1cb10026ffffccffeda0fed976feb24cfd8d3cfc4e2ae31a1c"
     "b10026ffffccffeda0fed976feb24cfd8d3cfc4e2ae31a1cbd0026800026"},
    {"Viridis", RampKind::Sequential, 33, 33,
     "440154470d6048186a482374472d7b4537814240863e49893b528b375b8d33638d2f6b8e2c728e297a8e26828e23898e"
     "21918c1f978b1f9f8821a68527ad8131b57b3dbc744cc26c5cc8636ece5881d34d95d840aadc32c0df25d5e21aeae51a"
     "fde725"},
    {"Magma", RampKind::Sequential, 33, 33,
     "0000040303120a0822130d341d114729115a36106b440f7651127c5d177f6a1c81762181832681902a819c2e7faa337d"
     "b73779c23b75cf4070db476ae55064ee5b5ef4695cf9785dfb8761fd9668fea571feb47bfec287fed194fde0a1fceeb0"
     "fcfdbf"},
    {"Inferno", RampKind::Sequential, 33, 33,
     "0000040403120b0724150b37210c4a2f0a5b3d09654a0c6b57106e64156e71196e7d1e6d8a226a972766a32c61b0315b"
     "bc3754c63d4dd04545da4e3ce35933eb6429f1711ff67e14f98c0afb9b06fcaa0ffbba1ff9c932f5d949f2e865f3f586"
     "fcffa4"},
    {"Plasma", RampKind::Sequential, 33, 33,
     "0d08872206903105973f049c4c02a15901a56600a77201a87e03a88a09a59511a1a01a9caa2395b32c8ebc3587c43e7f"
     "cc4778d24f71d9586adf6263e56b5deb7556f07f4ff48948f89441fb9f3afdab33feb72dfdc328fcd025f9dd25f5eb27"
     "f0f921"},
    {"Cividis", RampKind::Sequential, 33, 33,
     "00224e00285b002e6a0533711a386f273e6e32436d3b496c434e6c4b546c535a6d5a5f6e61656f686a716f7073767676"
     "7d7c788381798b8778928d789a9376a29975aaa073b3a670bbad6dc3b369ccba64d4c15fddc858e6d051efd748f8df3c"
     "fee838"},
    {"BrBG", RampKind::Diverging, 3, 11,
     "d8b365f5f5f55ab4aca6611adfc27d80cdc1018571a6611adfc27df5f5f580cdc10185718c510ad8b365f6e8c3c7eae5"
     "5ab4ac01665e8c510ad8b365f6e8c3f5f5f5c7eae55ab4ac01665e8c510abf812ddfc27df6e8c3c7eae580cdc135978f"
     "01665e8c510abf812ddfc27df6e8c3f5f5f5c7eae580cdc135978f01665e5430058c510abf812ddfc27df6e8c3c7eae5"
     "80cdc135978f01665e003c305430058c510abf812ddfc27df6e8c3f5f5f5c7eae580cdc135978f01665e003c30"},
    {"PiYG", RampKind::Diverging, 3, 11,
     "e9a3c9f7f7f7a1d76ad01c8bf1b6dab8e1864dac26d01c8bf1b6daf7f7f7b8e1864dac26c51b7de9a3c9fde0efe6f5d0"
     "a1d76a4d9221c51b7de9a3c9fde0eff7f7f7e6f5d0a1d76a4d9221c51b7dde77aef1b6dafde0efe6f5d0b8e1867fbc41"
     "4d9221c51b7dde77aef1b6dafde0eff7f7f7e6f5d0b8e1867fbc414d92218e0152c51b7dde77aef1b6dafde0efe6f5d0"
     "b8e1867fbc414d92212764198e0152c51b7dde77aef1b6dafde0eff7f7f7e6f5d0b8e1867fbc414d9221276419"},
    {"PRGn", RampKind::Diverging, 3, 11,
     "af8dc3f7f7f77fbf7b7b3294c2a5cfa6dba00088377b3294c2a5cff7f7f7a6dba0008837762a83af8dc3e7d4e8d9f0d3"
     "7fbf7b1b7837762a83af8dc3e7d4e8f7f7f7d9f0d37fbf7b1b7837762a839970abc2a5cfe7d4e8d9f0d3a6dba05aae61"
     "1b7837762a839970abc2a5cfe7d4e8f7f7f7d9f0d3a6dba05aae611b783740004b762a839970abc2a5cfe7d4e8d9f0d3"
     "a6dba05aae611b783700441b40004b762a839970abc2a5cfe7d4e8f7f7f7d9f0d3a6dba05aae611b783700441b"},
    {"PuOr", RampKind::Diverging, 3, 11,
     "f1a340f7f7f7998ec3e66101fdb863b2abd25e3c99e66101fdb863f7f7f7b2abd25e3c99b35806f1a340fee0b6d8daeb"
     "998ec3542788b35806f1a340fee0b6f7f7f7d8daeb998ec3542788b35806e08214fdb863fee0b6d8daebb2abd28073ac"
     "542788b35806e08214fdb863fee0b6f7f7f7d8daebb2abd28073ac5427887f3b08b35806e08214fdb863fee0b6d8daeb"
     "b2abd28073ac5427882d004b7f3b08b35806e08214fdb863fee0b6f7f7f7d8daebb2abd28073ac5427882d004b"},
    {"RdBu", RampKind::Diverging, 3, 11,
     "ef8a62f7f7f767a9cfca0020f4a58292c5de0571b0ca0020f4a582f7f7f792c5de0571b0b2182bef8a62fddbc7d1e5f0"
     "67a9cf2166acb2182bef8a62fddbc7f7f7f7d1e5f067a9cf2166acb2182bd6604df4a582fddbc7d1e5f092c5de4393c3"
     "2166acb2182bd6604df4a582fddbc7f7f7f7d1e5f092c5de4393c32166ac67001fb2182bd6604df4a582fddbc7d1e5f0"
     "92c5de4393c32166ac05306167001fb2182bd6604df4a582fddbc7f7f7f7d1e5f092c5de4393c32166ac053061"},
    {"RdGy", RampKind::Diverging, 3, 11,
     "ef8a62ffffff999999ca0020f4a582bababa404040ca0020f4a582ffffffbababa404040b2182bef8a62fddbc7e0e0e0"
     "9999994d4d4db2182bef8a62fddbc7ffffffe0e0e09999994d4d4db2182bd6604df4a582fddbc7e0e0e0bababa878787"
     "4d4d4db2182bd6604df4a582fddbc7ffffffe0e0e0bababa8787874d4d4d67001fb2182bd6604df4a582fddbc7e0e0e0"
     "bababa8787874d4d4d1a1a1a67001fb2182bd6604df4a582fddbc7ffffffe0e0e0bababa8787874d4d4d1a1a1a"},
    {"RdYlBu", RampKind::Diverging, 3, 11,
     "fc8d59ffffbf91bfdbd7191cfdae61abd9e92c7bb6d7191cfdae61ffffbfabd9e92c7bb6d73027fc8d59fee090e0f3f8"
     "91bfdb4575b4d73027fc8d59fee090ffffbfe0f3f891bfdb4575b4d73027f46d43fdae61fee090e0f3f8abd9e974add1"
     "4575b4d73027f46d43fdae61fee090ffffbfe0f3f8abd9e974add14575b4a50026d73027f46d43fdae61fee090e0f3f8"
     "abd9e974add14575b4313695a50026d73027f46d43fdae61fee090ffffbfe0f3f8abd9e974add14575b4313695"},
    {"RdYlGn", RampKind::Diverging, 3, 11,
     "fc8d59ffffbf91cf60d7191cfdae61a6d96a1a9641d7191cfdae61ffffbfa6d96a1a9641d73027fc8d59fee08bd9ef8b"
     "91cf601a9850d73027fc8d59fee08bffffbfd9ef8b91cf601a9850d73027f46d43fdae61fee08bd9ef8ba6d96a66bd63"
     "1a9850d73027f46d43fdae61fee08bffffbfd9ef8ba6d96a66bd631a9850a50026d73027f46d43fdae61fee08bd9ef8b"
     "a6d96a66bd631a9850006837a50026d73027f46d43fdae61fee08bffffbfd9ef8ba6d96a66bd631a9850006837"},
    {"Spectral", RampKind::Diverging, 3, 11,
     "fc8d59ffffbf99d594d7191cfdae61abdda42b83bad7191cfdae61ffffbfabdda42b83bad53e4ffc8d59fee08be6f598"
     "99d5943288bdd53e4ffc8d59fee08bffffbfe6f59899d5943288bdd53e4ff46d43fdae61fee08be6f598abdda466c2a5"
     "3288bdd53e4ff46d43fdae61fee08bffffbfe6f598abdda466c2a53288bd9e0142d53e4ff46d43fdae61fee08be6f598"
     "abdda466c2a53288bd5e4fa29e0142d53e4ff46d43fdae61fee08bffffbfe6f598abdda466c2a53288bd5e4fa2"},
    {"Accent", RampKind::Qualitative, 8, 8,
     "7fc97fbeaed4fdc086ffff99386cb0f0027fbf5b17666666"},
    {"Dark2", RampKind::Qualitative, 8, 8,
     "1b9e77d95f027570b3e7298a66a61ee6ab02a6761d666666"},
    {"Paired", RampKind::Qualitative, 12, 12,
     "a6cee31f78b4b2df8a33a02cfb9a99e31a1cfdbf6fff7f00cab2d66a3d9affff99b15928"},
    {"Pastel1", RampKind::Qualitative, 9, 9,
     "fbb4aeb3cde3ccebc5decbe4fed9a6ffffcce5d8bdfddaecf2f2f2"},
    {"Pastel2", RampKind::Qualitative, 8, 8,
     "b3e2cdfdcdaccbd5e8f4cae4e6f5c9fff2aef1e2cccccccc"},
    {"Set1", RampKind::Qualitative, 9, 9,
     "e41a1c377eb84daf4a984ea3ff7f00ffff33a65628f781bf999999"},
    {"Set2", RampKind::Qualitative, 8, 8,
     "66c2a5fc8d628da0cbe78ac3a6d854ffd92fe5c494b3b3b3"},
    {"Set3", RampKind::Qualitative, 12, 12,
     "8dd3c7ffffb3bebadafb807280b1d3fdb462b3de69fccde5d9d9d9bc80bdccebc5ffed6f"},
};
// clang-format on

// A colour in Oklab (Björn Ottosson, 2020), where equal steps look equal.
struct Lab {
  double lightness, a, b;
};

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}
double gamma(double light) {
  double const within = std::clamp(light, 0.0, 1.0);
  return within <= 0.0031308 ? 12.92 * within : 1.055 * std::pow(within, 1 / 2.4) - 0.055;
}

Lab labOf(QColor const& color) {
  double const r = linear(color.redF()), g = linear(color.greenF()), b = linear(color.blueF());
  double const l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
  double const m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
  double const s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
  return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
          1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
          0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

QColor colorOf(Lab const& lab) {
  auto const cube = [](double x) { return x * x * x; };
  double const l = cube(lab.lightness + 0.3963377774 * lab.a + 0.2158037573 * lab.b);
  double const m = cube(lab.lightness - 0.1055613458 * lab.a - 0.0638541728 * lab.b);
  double const s = cube(lab.lightness - 0.0894841775 * lab.a - 1.2914855480 * lab.b);
  auto const channel = [](double light) { return static_cast<int>(std::lround(255 * gamma(light))); };
  return {channel(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
          channel(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
          channel(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s)};
}

QVector<QColor> rowOf(ColorRamp const& ramp, int count) {
  constexpr int digits = 6;
  std::ptrdiff_t before = 0;
  for (int i = ramp.fewest; i < count; ++i) before += i;
  QVector<QColor> row;
  for (int i = 0; i < count; ++i)
    row << QColor(QLatin1Char('#') + QString::fromLatin1(ramp.numbers + digits * (before + i), digits));
  return row;
}

QColor between(QVector<QColor> const& row, double part) {
  double const place = part * (row.size() - 1);
  int const below = std::min(static_cast<int>(place), row.size() - 2);
  double const rest = place - below;
  Lab const from = labOf(row[below]), to = labOf(row[below + 1]);
  auto const mix = [rest](double a, double b) { return a + rest * (b - a); };
  return colorOf({mix(from.lightness, to.lightness), mix(from.a, to.a), mix(from.b, to.b)});
}

// The n-th time that a row is run through.
QColor again(QColor const& color, int round) {
  constexpr double shifts[] = {0, -0.12, 0.08, -0.2}, darkest = 0.25, lightest = 0.95;
  double const shift = shifts[round % 4];
  if (shift == 0) return color;
  Lab lab = labOf(color);
  lab.lightness = std::clamp(lab.lightness + shift, darkest, lightest);
  return colorOf(lab);
}

}  // namespace

QVector<QColor> ColorRamp::colors(int count, bool reversed) const {
  QVector<QColor> chosen;
  if (kind != RampKind::Qualitative && count >= fewest && count <= most) {
    chosen = rowOf(*this, count);
  } else {
    QVector<QColor> const row = rowOf(*this, count < fewest ? fewest : most);
    for (int i = 0; i < count; ++i)
      chosen << (kind == RampKind::Qualitative ? again(row[i % most], i / most)
                                               : between(row, count > 1 ? double(i) / (count - 1) : 0.5));
  }
  if (reversed) std::reverse(chosen.begin(), chosen.end());
  return chosen;
}

QVector<ColorRamp> const& ColorRamp::all() {
  static QVector<ColorRamp> const all(std::begin(ramps), std::end(ramps));
  return all;
}

ColorRamp const* ColorRamp::named(QString const& name) {
  auto const found = std::find_if(std::begin(ramps), std::end(ramps), [&](ColorRamp const& ramp) {
    return name.compare(QLatin1String(ramp.name), Qt::CaseInsensitive) == 0;
  });
  return found == std::end(ramps) ? nullptr : found;
}

ColorRamp const& ColorRamp::usual(RampKind kind) {
  char const* const names[] = {"YlGnBu", "RdBu", "Set3"};
  return *named(QLatin1String(names[static_cast<int>(kind)]));
}

}  // namespace SysCarto
