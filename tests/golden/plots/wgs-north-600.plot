kind WGS
surface screen
size 8
box   37.1200
box  127.0000
box    0.1200
box    0.0200
point 37.20944444444444 127.09194444444445 가
point 37.37611111111111 127.0925 나-2
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
Line 141.2345 6237.8590 7626.6656 6237.8590 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6074.5504
print   37-14-00
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5958
print   37-16-00
Line 141.2345 3883.9499 7626.6656 3883.9499 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6412
print   37-18-00
Line 141.2345 2706.9953 7626.6656 2706.9953 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6866
print   37-20-00
Line 141.2345 1530.0407 7626.6656 1530.0407 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1366.7321
print   37-22-00
Line 141.2345 353.0861 7626.6656 353.0861 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7775
print   37-24-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-00-00
SelectObject
DeleteObject
Line 1530.0410 7626.6655 1530.0410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 88 523 10  127-02-00
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-04-00
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-06-00
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-08-00
SelectObject
DeleteObject
Line 6237.8591 7626.6655 6237.8591 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 402 523 10  127-10-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-12-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3599.5193 7081.3701 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3599.5193 6960.4101 3599.4271 7202.2700 0 6
Line 3478.5592 7081.3701 3720.3803 7081.3168 0 6
fontsize = 8.0000
CurrentX = 3387.6675
CurrentY = 6812.1356
print 가
DrawWidth = 2.0000
Circle 3619.1351 1196.5975 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3619.1351 1075.6375 3619.0921 1317.5872 0 6
Line 3498.1750 1196.5975 3740.0453 1196.6340 0 6
fontsize = 8.0000
CurrentX = 3407.2834
CurrentY = 927.3629
print 나-2
DrawWidth = 2.0000
Circle 3604.4233 7066.6582 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3604.4233 6945.6982 3604.5453 7187.5886 0 6
Line 3483.4632 7066.6582 3725.4987 7066.6354 0 6
fontsize = 8.0000
CurrentX = 3392.5713
CurrentY = 6797.4236
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
