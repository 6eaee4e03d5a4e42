kind WGS
surface screen
size 8
box   37.1000
box  127.0000
box    0.1500
box    0.0500
point 37.20944444444444 127.09194444444445 가
point 37.37625 127.0925 나-2
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
print   37-10-00
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5958
print   37-15-00
Line 141.2345 2706.9953 7626.6656 2706.9953 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6867
print   37-20-00
Line 141.2345 353.0862 7626.6656 353.0862 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7775
print   37-25-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-00-00
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-00
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-10-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-15-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 2950.2327 6206.5096 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2950.2327 6085.5495 2950.1589 6327.4740 0 6
Line 2829.2726 6206.5096 3071.2739 6206.4669 0 6
fontsize = 8.0000
CurrentX = 2738.3809
CurrentY = 5937.2750
print 가
DrawWidth = 2.0000
Circle 2965.9254 1494.7682 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2965.9254 1373.8082 2965.8910 1615.7408 0 6
Line 2844.9653 1494.7682 3086.7903 1494.7337 0 6
fontsize = 8.0000
CurrentX = 2754.0736
CurrentY = 1225.5336
print 나-2
DrawWidth = 2.0000
Circle 2954.1560 6194.7400 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2954.1560 6073.7800 2954.2535 6315.7289 0 6
Line 2833.1959 6194.7400 3075.1529 6194.7218 0 6
fontsize = 8.0000
CurrentX = 2742.3040
CurrentY = 5925.5055
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
