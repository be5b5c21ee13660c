// tent.pov -- one flat cell; the same picture stands on all four cells of a
// residence.  A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
#declare Yr = 0.56; #declare Zr = 0.39;          // ridge along x
#declare Xa = 0.50; #declare Xb = 0.86;          // ridge from, to
#declare X0 = 0.36; #declare Y0 = 0.32; #declare Y1 = 0.80;
#declare N = 6;
#declare I = 0;
// trodden earth
cylinder { 0, z*0.004, 0.34 scale <1.1,0.95,1> translate <0.62,0.60,0> mDirt(C("8A7A48")) }
#while (I < N)                                   // lit slope in bands of canvas
  #declare A = I/N; #declare B = (I+1)/N;
  #declare Cc = (mod(I,2) = 0 ? cCanvas : C("D9A95A"));
  #declare Pa = <X0 + (Xb-X0)*A, Y1, 0.02>; #declare Pb = <X0 + (Xb-X0)*B, Y1, 0.02>;
  #declare Qa = <Xa + (Xb-Xa)*A, Yr, Zr>; #declare Qb = <Xa + (Xb-Xa)*B, Yr, Zr>;
  #declare Ma = (Pa+Qa)/2 - <0,0.02,0.02>; #declare Mb = (Pb+Qb)/2 - <0,0.02,0.02>;
  mesh { triangle { Pa, Pb, Mb } triangle { Pa, Mb, Ma } triangle { Ma, Mb, Qb } triangle { Ma, Qb, Qa } mPlain(Cc) }
  #declare I = I + 1;
#end
mesh { triangle { <X0,Y0,0>, <Xb,Y0,0>, <Xb,Yr,Zr> } triangle { <X0,Y0,0>, <Xb,Yr,Zr>, <Xa,Yr,Zr> } mPlain(cCanvas*0.9) }
mesh { triangle { <X0,Y0,0>, <X0,Y1,0.02>, <Xa,Yr,Zr> } mPlain(cCanvas) }
// front: flaps tied back from a dark entrance
mesh { triangle { <Xb-0.05,Y0,0>, <Xb-0.05,Y1,0>, <Xb-0.05,Yr,Zr> } mPlain(C("3A2A1C")) }
mesh { triangle { <Xb,Y1,0.01>, <Xb+0.01,Yr+0.09,0.01>, <Xb,Yr,Zr> } mPlain(cCanvas*1.05) }
mesh { triangle { <Xb,Y0,0.01>, <Xb+0.01,Yr-0.09,0.01>, <Xb,Yr,Zr> } mPlain(cCanvas*1.05) }
cylinder { <Xb,Yr,0>, <Xb,Yr,Zr+0.03>, 0.013 mPlain(cBeam) }
cylinder { <Xa-0.01,Yr,Zr>, <Xb+0.03,Yr,Zr>, 0.014 mPlain(cWood) }
// guy ropes
cylinder { <Xb,Yr,Zr>, <1.0,Yr+0.02,0>, 0.006 mPlain(C("C8B48A")) }
cylinder { <X0+0.1,Y1,0.04>, <X0+0.06,Y1+0.11,0>, 0.006 mPlain(C("C8B48A")) }
cylinder { <Xb-0.05,Y1,0.04>, <Xb-0.03,Y1+0.11,0>, 0.006 mPlain(C("C8B48A")) }
Crate(<0.22, 0.62, 0>, 0.10, 0.07, 12, cApple, 3)
Sack(<0.20, 0.78, 0>, 0.045)
