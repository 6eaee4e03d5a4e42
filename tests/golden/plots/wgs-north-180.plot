kind WGS
surface screen
size 8
box   37.1230
box  127.0400
box    0.0330
box    0.0030
point 37.20944444444444 127.09194444444445 가
point 37.25944444444445 127.0925 나-2
point 37.20986111111111 127.09208333333333 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-12-30
Line 141.2345 6405.9954 7626.6656 6405.9954 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6242.6868
print   37-13-00
Line 141.2345 5397.1772 7626.6656 5397.1772 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5233.8685
print   37-13-30
Line 141.2345 4388.3589 7626.6656 4388.3589 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4225.0503
print   37-14-00
Line 141.2345 3379.5407 7626.6656 3379.5407 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3216.2321
print   37-14-30
Line 141.2345 2370.7225 7626.6656 2370.7225 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2207.4138
print   37-15-00
Line 141.2345 1361.9043 7626.6656 1361.9043 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1198.5956
print   37-15-30
Line 141.2345 353.0860 7626.6656 353.0860 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7774
print   37-16-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-04-00
SelectObject
DeleteObject
Line 1361.9046 7626.6655 1361.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 77 523 10  127-04-30
SelectObject
DeleteObject
Line 2370.7229 7626.6655 2370.7229 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 144 523 10  127-05-00
SelectObject
DeleteObject
Line 3379.5410 7626.6655 3379.5410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 211 523 10  127-05-30
SelectObject
DeleteObject
Line 4388.3595 7626.6655 4388.3595 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 278 523 10  127-06-00
SelectObject
DeleteObject
Line 5397.1775 7626.6655 5397.1775 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 346 523 10  127-06-30
SelectObject
DeleteObject
Line 6405.9956 7626.6655 6405.9956 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 413 523 10  127-07-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-07-30
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3413.2914 7280.1506 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3413.2914 7159.1906 3412.9752 7400.9596 0 6
Line 3292.3313 7280.1506 3533.9668 7279.9679 0 6
fontsize = 8.0000
CurrentX = 3201.4394
CurrentY = 7010.9161
print 가
DrawWidth = 2.0000
Circle 3480.5458 1227.2415 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3480.5458 1106.2815 3480.3981 1348.1429 0 6
Line 3359.5857 1227.2415 3601.3898 1227.1512 0 6
fontsize = 8.0000
CurrentX = 3268.6941
CurrentY = 958.0070
print 나-2
DrawWidth = 2.0000
Circle 3430.1049 7229.7097 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3430.1049 7108.7497 3430.5237 7350.6234 0 6
Line 3309.1448 7229.7097 3551.5154 7229.6317 0 6
fontsize = 8.0000
CurrentX = 3218.2532
CurrentY = 6960.4752
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
