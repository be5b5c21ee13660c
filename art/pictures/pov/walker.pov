// walker.pov -- a person on foot; the feet are at the middle of a cell.
// Dir 0..3: walking along +x, +y, -x, -y.  Step 0..3 of the gait: 0 and 2 pass,
// 1 and 3 stride.  Who: 0 a man in blue, 1 a woman in red with an apron, 2 a
// farmer with a straw hat, 3 a woman in green with a basket.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
#ifndef (Dir) #declare Dir = 0; #end
#ifndef (Step) #declare Step = 1; #end
#ifndef (Who) #declare Who = 0; #end
Ground()

#declare Lift = 0.030*abs(cos(Step*pi/2));     // the passing foot is off the ground
#declare Bob = 0.014*abs(cos(Step*pi/2));
#declare Skirt = (Who = 1 | Who = 3);
#declare Sw = (Skirt ? 0.052 : 0.088)*sin(Step*pi/2);
#switch (Who)
  #case (0) #declare cCoat = C("2A55B8"); #declare cHair = C("6E4322"); #declare cLegs = C("D8C79C"); #break
  #case (1) #declare cCoat = C("C2332E"); #declare cHair = C("F6ECD2"); #declare cLegs = C("A02A28"); #break
  #case (2) #declare cCoat = C("17787E"); #declare cHair = C("F0C850"); #declare cLegs = C("5E3E22"); #break
  #case (3) #declare cCoat = C("2E7A36"); #declare cHair = C("7A3A18"); #declare cLegs = C("2A6A30"); #break
#end
#declare cSkin = C("F0C09A"); #declare cShoe = C("3A281A");
#macro Leg(Side, Reach, Up)
  cone { <Reach, 0.030*Side, 0.02+Up>, 0.025, <0, 0.026*Side, 0.16>, 0.036 mPlain((Skirt ? cShoe : cLegs)) }
  sphere { 0, 1 scale <0.042, 0.026, 0.022> translate <Reach+0.012, 0.030*Side, 0.018+Up> mPlain(cShoe) }
#end
union {
  Leg(1, Sw, 0)
  Leg(-1, -Sw, Lift)
  union {
    #if (Skirt)
      cone { <0,0,0.060>, 0.086, <0,0,0.18>, 0.050 mPlain(cLegs) }
      cone { <0.022,0,0.075>, 0.068, <0.018,0,0.18>, 0.040 mPlain((Who = 1 ? C("F4EBD8") : cLegs*1.15)) }
    #else
      cone { <0,0,0.120>, 0.068, <0,0,0.18>, 0.056 mPlain(cCoat) }
    #end
    cone { <0,0,0.155>, 0.058, <0,0,0.275>, 0.054 mPlain(cCoat) }
    cylinder { <0,0,0.160>, <0,0,0.176>, 0.061 mPlain(cBeamDark) }
    cone { <0,0.058,0.265>, 0.025, <-Sw*0.8, 0.072, 0.16>, 0.021 mPlain(cCoat*0.90) }
    cone { <0,-0.058,0.265>, 0.025, <Sw*0.8, -0.072, 0.16>, 0.021 mPlain(cCoat*0.90) }
    sphere { <-Sw*0.8, 0.072, 0.150>, 0.023 mPlain(cSkin) }
    sphere { <Sw*0.8, -0.072, 0.150>, 0.023 mPlain(cSkin) }
    // head a little forward, hair and hat well back: the face shows from in front
    sphere { <0.016,0,0.322>, 0.055 mPlain(cSkin) }
    sphere { 0, 0.057 scale <0.9,1.05,0.82> translate <-0.022,0,0.344> mPlain(cHair) }
    #if (Who = 2) cylinder { 0, z*0.010, 0.082 rotate -y*16 translate <-0.012,0,0.348> mPlain(cHair*0.95) } #end
    #if (Who = 3) sphere { 0, 0.045 scale <1,1,0.7> translate <0.05,-0.085,0.13> mPlain(C("C9985A")) } #end
    translate z*Bob
  }
  scale 0.86
  rotate z*90*Dir
  translate <0.5, 0.5, 0>
}
