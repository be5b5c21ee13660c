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
Chimney(<0.62, 0.50, H+0.16>, 0.13, 0.30)
// sign: a mug on a board, hung from a post beside the door
#declare Sx = 0.74; #declare Sy = 1.30;
cylinder { <Sx,Sy,0>, <Sx,Sy,0.52>, 0.022 mPlain(cBeam) }
cylinder { <Sx-0.02,Sy,0.50>, <Sx+0.30,Sy,0.50>, 0.018 mPlain(cBeam) }
box { <Sx+0.05,Sy-0.015,0.24>, <Sx+0.29,Sy+0.015,0.46> mPlain(C("2F6B46")) }
box { <Sx+0.07,Sy+0.012,0.26>, <Sx+0.27,Sy+0.020,0.44> mPlain(C("3F8A58")) }
box { <Sx+0.11,Sy+0.015,0.28>, <Sx+0.20,Sy+0.030,0.39> mPlain(C("F2C23A")) }
box { <Sx+0.10,Sy+0.015,0.38>, <Sx+0.21,Sy+0.032,0.42> mPlain(C("FFFBEA")) }
box { <Sx+0.20,Sy+0.015,0.31>, <Sx+0.235,Sy+0.028,0.36> mPlain(C("F2C23A")) }
// a striped awning over the door
#declare I = 0;
#while (I < 6)
  #declare A = X0+0.36+0.068*I; #declare B = A+0.068;
  mesh { triangle { <A,Y1+0.05,0.37>, <B,Y1+0.05,0.37>, <B,Y1+0.22,0.29> } triangle { <A,Y1+0.05,0.37>, <B,Y1+0.22,0.29>, <A,Y1+0.22,0.29> }
    triangle { <A,Y1+0.22,0.29>, <B,Y1+0.22,0.29>, <(A+B)/2,Y1+0.225,0.245> } mPlain((mod(I,2)=0 ? cCanvas : C("D9622E"))) }
  #declare I = I + 1;
#end
// tables
Table(<0.46, 1.54, 0>, 0.10, 4, cCanvas, 152)
Table(<0.94, 1.70, 0>, 0.10, 4, C("D9543E"), 153)
Table(<1.70, 1.06, 0>, 0.10, 4, cCanvas, 154)
Table(<1.40, 1.50, 0>, 0.10, 4, C("D9543E"), 155)
Barrel(<0.14, 1.10, 0>, 0.07, 0.19) Barrel(<0.15, 1.28, 0>, 0.07, 0.19)
Barrel(<1.66, 0.34, 0>, 0.08, 0.20) Barrel(<1.82, 0.44, 0>, 0.08, 0.20)
FlowerBush(<0.30, 1.78, 0>, 0.08, cLeaf, C("E8607A"), 156)
FlowerBush(<1.80, 1.78, 0>, 0.09, cLeaf, C("F2D14A"), 157)
