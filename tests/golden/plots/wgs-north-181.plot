kind WGS
surface screen
size 8
box   37.1200
box  127.0400
box    0.0400
box    0.0200
point 37.20944444444444 127.09194444444445 가
point 37.25972222222222 127.0925 나-2
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
print   37-12-00
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print   37-14-00
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-16-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-04-00
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-06-00
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-08-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3030.7656 6414.4831 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3030.7656 6293.5231 3030.4889 6535.5459 0 6
Line 2909.8055 6414.4831 3151.7116 6414.3233 0 6
fontsize = 8.0000
CurrentX = 2818.9138
CurrentY = 6145.2486
print 가
DrawWidth = 2.0000
Circle 3089.6134 1088.7641 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3089.6134 967.8041 3089.4840 1209.8340 0 6
Line 2968.6533 1088.7641 3210.7065 1088.6114 0 6
fontsize = 8.0000
CurrentX = 2877.7614
CurrentY = 819.5296
print 나-2
DrawWidth = 2.0000
Circle 3045.4774 6370.3473 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3045.4774 6249.3873 3045.8438 6491.5017 0 6
Line 2924.5173 6370.3473 3166.2582 6370.2791 0 6
fontsize = 8.0000
CurrentX = 2833.6257
CurrentY = 6101.1128
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
