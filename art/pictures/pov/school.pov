// school.pov -- 2x2, tall.  Dark slate roofs, a clock turret, a yard to play in.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
#declare Wall = C("E6C489");
#declare Trim = C("F7EFDC");
// long house at the back, gabled wing towards the viewer on the left
#declare X0 = 0.22; #declare Y0 = 0.24; #declare X1 = 1.76; #declare Y1 = 0.80; #declare H = 0.46;
#declare Wx1 = 0.84; #declare Wy1 = 1.42;
box { <0.84, 0.80, 0>, <1.88, 1.52, 0.005> mDirt(C("D9C592")) }
box { <X0-0.02, Y0-0.02, 0>, <X1+0.02, Y1+0.02, 0.06> mPlain(cStone) }
box { <X0-0.02, Y1, 0>, <Wx1+0.02, Wy1+0.02, 0.06> mPlain(cStone) }
box { <X0, Y0, 0>, <X1, Y1, H> mPlaster(Wall) }
box { <X0, Y1-0.05, 0>, <Wx1, Wy1, H> mPlaster(Wall) }
GableWall(X0, Y0, X1, Y1, H, 0.34, 0, Wall)
GableRoof(X0, Y0, X1, Y1, H, 0.34, 0, 0.05, cSlateDark, 0.15, 141)
GableWall(X0, 0.52, Wx1, Wy1, H, 0.36, 1, Wall)
GableRoof(X0, 0.52, Wx1, Wy1, H, 0.36, 1, 0.05, cSlateDark, 0.15, 142)
#declare I = 0;
#while (I < 4)
  Window(<0.98 + 0.21*I, Y1, 0.15>, x, 0.085, 0.21, 0, cBeam)
  #declare I = I + 1;
#end
Window(<X1, 0.66, 0.15>, -y, 0.085, 0.21, 0, cBeam)
Window(<X1, 0.38, 0.15>, -y, 0.085, 0.21, 0, cBeam)
Window(<X1, 0.52, 0.50>, -y, 0.08, 0.12, 0, cBeam)
Window(<X0+0.14, Wy1, 0.15>, x, 0.085, 0.21, 0, cBeam)
Window(<Wx1-0.14, Wy1, 0.15>, x, 0.085, 0.21, 0, cBeam)
Door(<(X0+Wx1)/2, Wy1, 0.02>, x, 0.14, 0.29, C("3E5C8A"))
cylinder { <(X0+Wx1)/2, Wy1, 0.58>, <(X0+Wx1)/2, Wy1+0.02, 0.58>, 0.085 mPlain(Trim) }
cylinder { <(X0+Wx1)/2, Wy1, 0.58>, <(X0+Wx1)/2, Wy1+0.025, 0.58>, 0.062 mPlain(C("FFFFFF")) }
Window(<Wx1, 1.04, 0.15>, -y, 0.085, 0.21, 0, cBeam)
Window(<Wx1, 1.26, 0.15>, -y, 0.085, 0.21, 0, cBeam)
// turret over the crossing
#declare Tx = (X0+Wx1)/2; #declare Ty = 0.52;
box { <Tx-0.13, Ty-0.13, 0.62>, <Tx+0.13, Ty+0.13, 1.00> mPlaster(Trim) }
box { <Tx-0.06, Ty+0.13, 0.86>, <Tx+0.06, Ty+0.14, 0.97> mPlain(cGlass*0.4) }
box { <Tx+0.13, Ty-0.06, 0.86>, <Tx+0.14, Ty+0.06, 0.97> mPlain(cGlass*0.3) }
HipRoof(Tx-0.13, Ty-0.13, Tx+0.13, Ty+0.13, 1.00, 0.28, 0.05, cSlateDark, 0.12, 143)
sphere { <Tx, Ty, 1.30>, 0.028 MatF(pigment { rgb cGold }, Shiny) }
// yard: fence, swing, trees, flag
Fence(<0.92, 1.90, 0>, <1.90, 1.90, 0>, 0.13, 9)
Fence(<1.90, 1.90, 0>, <1.90, 0.92, 0>, 0.13, 9)
Tree(<0.30, 1.74, 0>, 0.17, 0.20, cLeaf, 144)
Tree(<1.68, 1.70, 0>, 0.15, 0.16, cLeafDark*1.15, 145)
FlowerBush(<0.62, 1.66, 0>, 0.08, cLeaf, C("F2D14A"), 146)
#declare Pole = C("C04A38");
cylinder { <1.10,1.42,0>, <1.16,1.42,0.36>, 0.016 mPlain(Pole) } cylinder { <1.22,1.42,0>, <1.16,1.42,0.36>, 0.016 mPlain(Pole) }
cylinder { <1.10,1.78,0>, <1.16,1.78,0.36>, 0.016 mPlain(Pole) } cylinder { <1.22,1.78,0>, <1.16,1.78,0.36>, 0.016 mPlain(Pole) }
cylinder { <1.16,1.40,0.36>, <1.16,1.80,0.36>, 0.016 mPlain(Pole) }
box { <1.13,1.50,0.11>, <1.19,1.58,0.125> mPlain(cWood) } box { <1.17,1.64,0.13>, <1.23,1.72,0.145> mPlain(cWood) }
