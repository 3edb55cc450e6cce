-- Credit limits, DB2.
CONNECT TO sales;
CREATE TABLE credit (customer_id INTEGER NOT NULL, limit_amount DECIMAL(11,2), note VARCHAR(60));

CREATE TRIGGER credit_check NO CASCADE BEFORE UPDATE ON credit
  REFERENCING NEW AS n OLD AS o FOR EACH ROW
  WHEN (n.limit_amount > o.limit_amount * 2)
  BEGIN ATOMIC
    SIGNAL SQLSTATE '75001' ('doubled; ask first');
  END;

--#SET TERMINATOR @
CREATE PROCEDURE lower_limits (IN part DECIMAL(5,2))
LANGUAGE SQL
BEGIN
  DECLARE done INTEGER DEFAULT 0; /* outer /* nested */ still */
  FOR c AS SELECT customer_id FROM credit WHERE limit_amount > 0 DO
    UPDATE credit SET limit_amount = limit_amount * part WHERE customer_id = c.customer_id;
    SET done = done + 1;
  END FOR;
  CASE WHEN done = 0 THEN SIGNAL SQLSTATE '75002'; ELSE SET done = 0; END CASE;
END@
CALL lower_limits(0.9)@
--#SET TERMINATOR ;
SELECT COUNT(*) FROM credit WHERE note <> 'a;b';
