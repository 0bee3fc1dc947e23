# head

	 time	a	=>	q  # tail
   
0 	0	U#c
  3 0   H  
# end