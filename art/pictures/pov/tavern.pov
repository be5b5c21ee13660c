// tavern.pov -- 2x2, tall.  An orange-tiled inn with a sign, tables and barrels.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
Cobbles(0.08, 0.08, 1.92, 1.92, 0.090, C("D2B98E"), 150)
#declare X0 = 0.28; #declare Y0 = 0.26; #declare X1 = 1.40; #declare Y1 = 0.98; #declare H1 = 0.34; #declare H = 0.66;
#declare Ocher = C("F0C27A");
box { <X0-0.02, Y0-0.02, 0>, <X1+0.02, Y1+0.02, 0.07> mCobble(cStone, 0.08) }
box { <X0, Y0, 0>, <X1, Y1, H1> mPlaster(C("EBC48C")) }
box { <X0-0.04, Y0, H1>, <X1+0.05, Y1+0.05, H> mPlaster(Ocher) }
Timber(<X1+0.05, Y1+0.05, H1>, -y, Y1+0.05-Y0, H-H1, 4, 1)
Timber(<X0-0.04, Y1+0.05, H1>, x, X1+0.05-X0+0.04, H-H1, 6, 1)
GableWall(X0-0.04, Y0, X1+0.05, Y1+0.05, H, 0.42, 0, Ocher)
GableRoof(X0-0.04, Y0, X1+0.05, Y1+0.05, H, 0.42, 0, 0.06, cTileOrange, 0.15, 151)
Beam(<X1+0.055, Y1+0.05, H>, <X1+0.055, (Y0+Y1+0.05)/2, H+0.42>, 0.04)
Beam(<X1+0.055, Y0, H>, <X1+0.055, (Y0+Y1+0.05)/2, H+0.42>, 0.04)
Window(<X1+0.05, 0.64, H+0.08>, -y, 0.09, 0.12, 0, cBeam)
#declare Gn = C("3F7A4E");
#declare I = 0;
#while (I < 3)
  Window(<X0+0.20+0.37*I, Y1+0.05, H1+0.12>, x, 0.10, 0.13, 0, Gn)
  #declare I = I + 1;
#end
Window(<X1+0.05, 0.46, H1+0.12>, -y, 0.09, 0.13, 0, Gn)
Window(<X1+0.05, 0.84, H1+0.12>, -y, 0.09, 0.13, 0, Gn)
Door(<X0+0.56, Y1, 0.02>, x, 0.17, 0.29, cBeamDark)
Window(<X0+0.22, Y1, 0.12>, x, 0.13, 0.14, 0, Gn)
Window(<X0+0.90, Y1, 0.12>, x, 0.13, 0.14, 0, Gn)
Window(<X1, 0.62, 0.12>, -y, 0.13, 0.14, 0, Gn)
Chimney(<0.56, 0.46, H+0.18>, 0.13, 0.34)
// sign on its bracket
cylinder { <X1-0.06, Y1+0.05, 0.60>, <X1-0.06, Y1+0.36, 0.60>, 0.014 mPlain(cIron*0.5) }
box { <X1-0.075, Y1+0.12, 0.40>, <X1-0.045, Y1+0.34, 0.58> mPlain(cGold) }
cylinder { <X1-0.04, Y1+0.23, 0.44>, <X1-0.035, Y1+0.23, 0.54>, 0.05 mPlain(cRed) }
// tables
Table(<0.48, 1.42, 0>, 0.10, 4, cCanvas, 152)
Table(<0.98, 1.62, 0>, 0.10, 4, C("E0705A"), 153)
Table(<1.68, 0.80, 0>, 0.10, 4, cCanvas, 154)
Table(<1.56, 1.34, 0>, 0.10, 4, C("E0705A"), 155)
Barrel(<0.14, 1.10, 0>, 0.07, 0.19) Barrel(<0.15, 1.28, 0>, 0.07, 0.19)
Barrel(<1.66, 0.34, 0>, 0.08, 0.20) Barrel(<1.82, 0.44, 0>, 0.08, 0.20)
FlowerBush(<0.30, 1.78, 0>, 0.08, cLeaf, C("E8607A"), 156)
FlowerBush(<1.80, 1.78, 0>, 0.09, cLeaf, C("F2D14A"), 157)
